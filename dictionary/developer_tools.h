// SPDX-License-Identifier: GPL-3.0-or-later
// Two tools that prepare the data of built-in verbs; no user ever meets them.
#pragma once

#include <cstdint>
#include <filesystem>

#include "disk/file_system.h"
#include "engine/utf8.h"

namespace odmiennik::dictionary {

// Where the resource script goes: a fixed path on Windows, "odmiana.rc" in the program's folder
// elsewhere.
[[nodiscard]] std::filesystem::path resourceScriptPath(Utf8View prefix);

// Writes the first `count` records of the user-verbs file as a string table, a string a line: the
// number of verbs under 3000, the infinitives from 3001, the forms and the flag of each verb from
// 4000 in steps of 102; an empty form becomes "@". False, with nothing written, when there are
// fewer readable records.
[[nodiscard]] bool buildResourceScript(Utf8View prefix, std::int32_t count,
                                       const std::filesystem::path& script,
                                       disk::FileSystem& files = disk::systemFiles());

// Joins 196.txt, 198.txt … 252.txt of the folder "teksty", those that exist, into "Połącz.txt" in
// the same folder, with a line break behind every line. False, with nothing written, when a file
// cannot be read or written.
[[nodiscard]] bool joinTextFiles(Utf8View prefix, disk::FileSystem& files = disk::systemFiles());

}  // namespace odmiennik::dictionary
