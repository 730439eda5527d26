// SPDX-License-Identifier: GPL-3.0-or-later
// The files of the program folder.
#include "cli/program_files.h"

#include "disk/program_folder.h"
#include "disk/settings.h"

namespace odmiennik::cli {
namespace {

Utf8Text prefixOf(std::optional<Utf8View> folder) {
  return disk::AppFolder(folder ? Utf8Text(disk::withoutTrailingSeparators(*folder))
                                : disk::programFolder());
}

}  // namespace

ProgramFiles findProgramFiles(std::optional<Utf8View> folder, Console& console) {
  ProgramFiles files{.prefix = prefixOf(folder)};
  disk::Settings settings;
  const disk::SettingsRead read = readSettingsFile(files.prefix, settings);
  if (read == disk::SettingsRead::damaged || read == disk::SettingsRead::unreadable) {
    files.hasTrouble = true;
    console.complain(
        "Wystąpił błąd podczas odczytywania pliku konfiguracyjnego. Program może działać "
        "niepoprawnie.");
  }
  files.userVerbCount = settings.userVerbCount;
  return files;
}

}  // namespace odmiennik::cli
