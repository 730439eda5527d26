// SPDX-License-Identifier: GPL-3.0-or-later
// Which folder is the program's: where the user's verbs and the settings file are kept.
#pragma once

#include <filesystem>

#include "engine/utf8.h"

namespace odmiennik::disk {

// The folder of the executable; but `userData` where nothing can be kept there: for an installation
// (the executable in PREFIX/bin with PREFIX/share/odmiennik beside it), and where the system lets
// this user write no file (a folder of the administrator's, an image or disk for reading only).
// Nothing is created. Example: "/opt/o/odmien" -> "/opt/o".
[[nodiscard]] std::filesystem::path programFolder(const std::filesystem::path& executable,
                                                  const std::filesystem::path& userData);

// The program folder of the running program; the current folder when the system does not
// tell where its executable is.
[[nodiscard]] Utf8Text programFolder();

// The running executable; empty when the system does not tell.
[[nodiscard]] std::filesystem::path executablePath();

// $XDG_DATA_HOME/odmiennik, by default ~/.local/share/odmiennik; on Windows %APPDATA%\Odmiennik.
// Empty when the user has no home.
[[nodiscard]] std::filesystem::path userDataFolder();

// A folder as the user named it, without separators and blanks at its end, so that AppFolder does
// not take it for a drive's root: "/home/ala//" -> "/home/ala", "/" -> "".
[[nodiscard]] Utf8View withoutTrailingSeparators(Utf8View folder);

// The folder without trailing blanks and with a separator of the system's own behind it:
// AppFolder("/home/ala ") -> "/home/ala/".
// deliberate: a folder that already ends in "/" or "\" gives the empty text, so that a program in a
// drive's root names its files relative to the current folder.
[[nodiscard]] Utf8Text AppFolder(Utf8View folder);

}  // namespace odmiennik::disk
