// SPDX-License-Identifier: GPL-3.0-or-later
// The program's folder.
#include "app/lifetime/program_arguments.h"

#include <filesystem>
#include <system_error>

#include "dictionary/file_names.h"
#include "dictionary/program_folder.h"

namespace odmiennik::app {

std::string programFolderOf(const std::optional<std::string>& named) {
  if (named) return *named;
  std::string folder = dictionary::programFolder();
  std::error_code ignored;  // the settings tell when they cannot be written
  std::filesystem::create_directories(dictionary::pathOf(folder), ignored);
  return folder;
}

}  // namespace odmiennik::app
