// SPDX-License-Identifier: GPL-3.0-or-later
// The files of the program folder.
#include "cli/program_files.h"

#include "dictionary/program_folder.h"
#include "dictionary/settings.h"

namespace odmiennik::cli {
namespace {

Utf8Text prefixOf(std::optional<Utf8View> folder) {
  return dictionary::AppFolder(folder ? Utf8Text(dictionary::withoutTrailingSeparators(*folder))
                                      : dictionary::programFolder());
}

}  // namespace

ProgramFiles findProgramFiles(std::optional<Utf8View> folder, Console& console) {
  ProgramFiles files{.prefix = prefixOf(folder)};
  dictionary::Settings settings;
  const dictionary::SettingsRead read = readSettingsFile(files.prefix, settings);
  if (read == dictionary::SettingsRead::damaged || read == dictionary::SettingsRead::unreadable) {
    files.hasTrouble = true;
    console.complain(
        "Wystąpił błąd podczas odczytywania pliku konfiguracyjnego. Program może działać "
        "niepoprawnie.");
  }
  files.userVerbCount = settings.userVerbCount;
  return files;
}

}  // namespace odmiennik::cli
