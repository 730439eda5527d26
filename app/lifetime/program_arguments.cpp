// SPDX-License-Identifier: GPL-3.0-or-later
// The program's folder.
#include "app/lifetime/program_arguments.h"

#include <filesystem>
#include <system_error>

#include "disk/names.h"
#include "disk/program_folder.h"

namespace odmiennik::app {

Utf8Text programFolderOf(const std::optional<Utf8Text>& named) {
  if (named) return *named;
  Utf8Text folder = disk::programFolder();
  std::error_code ignored;  // the settings tell when they cannot be written
  std::filesystem::create_directories(disk::pathOf(folder), ignored);
  return folder;
}

}  // namespace odmiennik::app
