// SPDX-License-Identifier: GPL-3.0-or-later
// What the command says of itself.
#pragma once

#include "engine/utf8.h"

namespace odmiennik::cli {

// The text of --help, Polish: every option in a line of its own.
bool appendHelp(Utf8Text& out, Utf8View);

// "odmien 1.0.0"
bool appendVersion(Utf8Text& out, Utf8View);

}  // namespace odmiennik::cli
