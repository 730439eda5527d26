// SPDX-License-Identifier: GPL-3.0-or-later
// The program folder as the command sees it: a place to read from; it never writes there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "cli/console.h"

namespace odmiennik::cli {

struct ProgramFiles {
  std::string prefix;  // before every bare file name, UTF-8
  std::int32_t userVerbCount = 0;
  bool hasTrouble = false;
};

// Looks into `folder`, or into the program's own. A damaged settings file gives what could be read
// and is complained of.
[[nodiscard]] ProgramFiles findProgramFiles(std::optional<std::string_view> folder,
                                            Console& console);

}  // namespace odmiennik::cli
