// SPDX-License-Identifier: GPL-3.0-or-later
// The program folder as the command sees it: a place to read from; it never writes there.
#pragma once

#include <cstdint>
#include <optional>

#include "cli/console.h"
#include "engine/utf8.h"

namespace odmiennik::cli {

struct ProgramFiles {
  Utf8Text prefix;  // before every bare file name
  std::int32_t userVerbCount = 0;
  bool hasTrouble = false;
};

// Looks into `folder`, or into the program's own. A damaged settings file gives what could be read
// and is complained of.
[[nodiscard]] ProgramFiles findProgramFiles(std::optional<Utf8View> folder, Console& console);

}  // namespace odmiennik::cli
