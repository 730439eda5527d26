// SPDX-License-Identifier: GPL-3.0-or-later
// The names of files in the program's folder: found without regard to case on every system.
#pragma once

#include <filesystem>
#include <optional>

#include "disk/file_system.h"
#include "engine/utf8.h"

namespace odmiennik::disk {

// The path of a name, whatever the system's own encoding: pathOf("Połącz.txt").
[[nodiscard]] std::filesystem::path pathOf(Utf8View name);

// A name that has been looked for.
struct FoundFile {
  Presence presence = Presence::unknown;
  std::filesystem::path path;  // where it stands; of a file that is missing, where a new one would
};

// What stands under `prefix` + `name`, read without regard to the case of the letters a to z:
// findFile("/home/ala/", "Czasowniki.dat").path -> "/home/ala/CZASOWNIKI.DAT". The exact spelling
// goes first. Unknown when the disk does not answer: then nothing may be made of it.
[[nodiscard]] FoundFile findFile(Utf8View prefix, Utf8View name, FileSystem& files = systemFiles());

// The path of a file that is there. Only for readers that do without: whoever writes asks findFile,
// which tells a missing file from a disk that does not answer.
[[nodiscard]] std::optional<std::filesystem::path> existingFile(Utf8View prefix, Utf8View name,
                                                                FileSystem& files = systemFiles());

// The first name that is free of `name`, `name`2, `name`3 …: freeName("", "Czasowniki.bak") ->
// "Czasowniki.bak2" beside an older copy. Nothing when that cannot be told.
[[nodiscard]] std::optional<std::filesystem::path> freeName(Utf8View prefix, Utf8View name,
                                                            FileSystem& files = systemFiles());

// The folder of a file: "/home/ala/a.txt" -> "/home/ala", "a.txt" -> ".".
[[nodiscard]] std::filesystem::path folderOf(const std::filesystem::path& file);

}  // namespace odmiennik::disk
