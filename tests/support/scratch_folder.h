// SPDX-License-Identifier: GPL-3.0-or-later
// A folder of a test's own.
#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace odmiennik::scratch {

// New and empty; removed with everything in it when the test is over. Tests run side by side, so no
// two may share a folder.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::random_device random;
    do
      path_ =
          std::filesystem::temp_directory_path() / ("odmiennik-test-" + std::to_string(random()));
    while (!std::filesystem::create_directory(path_));
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace odmiennik::scratch
