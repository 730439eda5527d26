// SPDX-License-Identifier: GPL-3.0-or-later
// The project's own sources, read as text.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace odmiennik::lint {

struct Source {
  std::string path;  // from the project's top, with "/"
  std::string text;

  [[nodiscard]] std::string folder() const { return path.substr(0, path.find('/')); }
};

inline std::string contentsOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

inline bool hasEnding(const std::string& path, const std::vector<std::string_view>& endings) {
  return std::any_of(endings.begin(), endings.end(),
                     [&](std::string_view ending) { return path.ends_with(ending); });
}

// Every file below the project's top with one of the endings; builds and hidden folders left out.
inline std::vector<Source> sources(const std::vector<std::string_view>& endings) {
  namespace fs = std::filesystem;
  const fs::path top = ODMIENNIK_SOURCE_DIR;
  std::vector<Source> found;
  for (auto entry = fs::recursive_directory_iterator(top); entry != fs::end(entry); ++entry) {
    const std::string name = entry->path().filename().string();
    const bool isBuild = entry.depth() == 0 && name.starts_with("build");
    if (entry->is_directory() && (isBuild || name.starts_with('.')))
      entry.disable_recursion_pending();
    if (!entry->is_regular_file() || !hasEnding(name, endings)) continue;
    found.push_back({fs::relative(entry->path(), top).generic_string(), contentsOf(entry->path())});
  }
  return found;
}

inline std::vector<Source> cppSources() { return sources({".h", ".cpp"}); }

// The lines of a text, without their ends.
inline std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// What stands between the quotes or brackets of the line's #include, or nothing.
inline std::string includedBy(const std::string& line) {
  if (!line.starts_with("#include ")) return {};
  const auto open = line.find_first_of("\"<");
  const auto close = line.find_first_of("\">", open + 1);
  return line.substr(open + 1, close - open - 1);
}

}  // namespace odmiennik::lint
