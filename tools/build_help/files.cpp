// SPDX-License-Identifier: GPL-3.0-or-later
// Reading, writing and listing of files.
#include "tools/build_help/files.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace odmiennik::tools {

namespace fs = std::filesystem;

std::string readFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path.string() + ": cannot be read");
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

void writeFile(const fs::path& path, std::string_view text) {
  fs::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary);
  out << text;
  if (!out.flush()) throw std::runtime_error(path.string() + ": cannot be written");
}

std::vector<std::string> namesIn(const fs::path& folder, std::string_view extension) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != extension) continue;
    const std::u8string name = entry.path().filename().u8string();
    names.emplace_back(name.begin(), name.end());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace odmiennik::tools
