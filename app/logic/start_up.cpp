// SPDX-License-Identifier: GPL-3.0-or-later
// The start of the program.
#include "app/logic/start_up.h"

#include <limits>

#include "dictionary/messages.h"
#include "disk/program_folder.h"

namespace odmiennik::app {

Utf8Text versionText(Version version) {
  return decimal(version.major) + '.' + decimal(version.minor) + '.' + decimal(version.revision);
}

Utf8Text captionWithVersion(Version version) {
  return Utf8Text(dictionary::kApplicationTitle) + " v." + versionText(version);
}

Utf8Text helpFilePath(Utf8View folder, char separator) {
  return Utf8Text(folder) + separator + Utf8Text(kHelpFile);
}

std::string characterMapPath(std::string_view windowsFolder) {
  const Utf8Text prefix = disk::AppFolder(asUtf8(windowsFolder));
  return std::string(bytesOf(prefix)).append(bytesOf(kCharacterMap));
}

void countOne(std::int32_t& counter) {
  if (counter < std::numeric_limits<std::int32_t>::max()) ++counter;
}

}  // namespace odmiennik::app
