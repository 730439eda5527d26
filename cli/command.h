// SPDX-License-Identifier: GPL-3.0-or-later
// The command `odmien`: what its arguments ask for is done.
#pragma once

#include <span>

#include "cli/console.h"
#include "engine/utf8.h"

namespace odmiennik::cli {

// Answers the arguments, or standard input when they name no verb.
[[nodiscard]] ExitStatus runCommand(std::span<const Utf8Text> arguments, Console& console);

}  // namespace odmiennik::cli
