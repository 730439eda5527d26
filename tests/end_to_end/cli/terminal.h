// SPDX-License-Identifier: GPL-3.0-or-later
// Running the command on a terminal of its own.
#pragma once

#include <string>

#include "process.h"

namespace odmiennik::end_to_end {

// What the command shows on a terminal that is its standard output and standard error, and where
// `typed` is given its standard input too: "parler\n\x04", up to Ctrl+D.
[[nodiscard]] std::string runOnTerminal(const Arguments& arguments, const Arguments& environment,
                                        std::string_view typed = {});

}  // namespace odmiennik::end_to_end
