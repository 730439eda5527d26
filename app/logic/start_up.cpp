// SPDX-License-Identifier: GPL-3.0-or-later
// The start of the program.
#include "app/logic/start_up.h"

#include <limits>

#include "dictionary/messages.h"
#include "dictionary/program_folder.h"

namespace odmiennik::app {

std::string versionText(Version version) {
  return std::to_string(version.major) + '.' + std::to_string(version.minor) + '.' +
         std::to_string(version.revision);
}

std::string captionWithVersion(Version version) {
  return std::string(dictionary::kApplicationTitle) + " v." + versionText(version);
}

std::string helpFilePath(std::string_view folder, char separator) {
  return std::string(folder) + separator + std::string(kHelpFile);
}

std::string characterMapPath(std::string_view windowsFolder) {
  return dictionary::AppFolder(windowsFolder) + std::string(kCharacterMap);
}

void countOne(std::int32_t& counter) {
  if (counter < std::numeric_limits<std::int32_t>::max()) ++counter;
}

}  // namespace odmiennik::app
