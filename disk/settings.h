// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file Werbolin.cfg: five lines of numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "disk/file_system.h"
#include "engine/utf8.h"

namespace odmiennik::disk {

// Signed 32-bit values; colours are red + 256 x green + 65536 x blue.
struct Settings {
  std::int32_t userVerbCount = 0;
  std::int32_t moodColour = 0;
  std::int32_t tenseColour = 0;
  std::int32_t conjugationCount = 0;
  std::int32_t runCount = 0;
};

// Reads the text of a settings file into `settings`, field by field (divided by line ends or
// commas); false at the first one that is missing or no signed 32-bit number: what stood before it
// has been taken, the rest is untouched. Of "3,255,x" the first two are.
[[nodiscard]] bool parseSettings(std::string_view text, Settings& settings);

// The five lines, each ended by CR LF, the run count encoded: {3, 255, 65280, 41, 12} ->
// "3\r\n255\r\n65280\r\n41\r\n1112\r\n".
[[nodiscard]] std::string settingsText(const Settings& settings);

// The encoding of the fifth line: each character's code less 32 as two hexadecimal digits:
// encodeRunCount(12) -> "1112".
[[nodiscard]] std::string encodeRunCount(std::int32_t runCount);

// Whether a settings file could be read: `missing` is no fault, but only a file that is known not
// to be there is missing. Of an unreadable one it is not known what it holds.
enum class SettingsRead : std::uint8_t { read, missing, damaged, unreadable };

// Reads `prefix` + "Werbolin.cfg"; a damaged file fills what it can.
[[nodiscard]] SettingsRead readSettingsFile(Utf8View prefix, Settings& settings,
                                            FileSystem& files = systemFiles());

// Replaces `prefix` + "Werbolin.cfg"; false leaves the file as it was. Where there was none, one
// that has come meanwhile stays.
[[nodiscard]] bool writeSettingsFile(Utf8View prefix, const Settings& settings,
                                     FileSystem& files = systemFiles());

// Removes what a write that was ended half-way left beside the file; for the program's start.
void removeUnfinishedSettings(Utf8View prefix, FileSystem& files = systemFiles());

}  // namespace odmiennik::disk
