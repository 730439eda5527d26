// SPDX-License-Identifier: GPL-3.0-or-later
// What the command says of itself.
#pragma once

#include <string>
#include <string_view>

namespace odmiennik::cli {

// The text of --help, Polish: every option in a line of its own.
bool appendHelp(std::string& out, std::string_view);

// "odmien 1.0.0"
bool appendVersion(std::string& out, std::string_view);

}  // namespace odmiennik::cli
