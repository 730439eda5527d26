// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of text sources.
#include "tools/compile_data/source_file.h"

#include <fstream>
#include <sstream>

#include "engine/windows1252.h"

namespace odmiennik::tools {

SourceError::SourceError(std::string_view file, int line, std::string_view reason)
    : std::runtime_error(std::string(file) + ":" + std::to_string(line) + ": " +
                         std::string(reason)) {}

void SourceFile::fail(const SourceLine& line, std::string_view reason) const {
  throw SourceError(name, line.number, reason);
}

std::string_view trim(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

namespace {

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const int length = engine::decodeUtf8(asUtf8(text)).length;
    if (length == 0) return false;
    text.remove_prefix(static_cast<std::size_t>(length));
  }
  return true;
}

}  // namespace

SourceFile readSource(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw SourceError(path, 1, "cannot be read");
  SourceFile file{path, {}};
  std::string text;
  for (int number = 1; std::getline(in, text); ++number) {
    const std::string_view line = trim(text);
    if (!isUtf8(line)) throw SourceError(path, number, "bytes that are no UTF-8");
    if (!line.empty() && line.front() != '#') file.lines.push_back({std::string(line), number});
  }
  if (file.lines.empty()) throw SourceError(path, 1, "nothing stands in it");
  return file;
}

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (auto end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
    parts.emplace_back(trim(text.substr(0, end)));
    text.remove_prefix(end + 1);
  }
  parts.emplace_back(trim(text));
  return parts;
}

std::string french(const SourceFile& file, const SourceLine& line, std::string_view utf8) {
  const engine::FromUtf8 converted = engine::fromUtf8(asUtf8(utf8));
  if (converted.fault != engine::Utf8Fault::none)
    file.fail(line, "a letter outside Windows-1252 in \"" + std::string(utf8) + "\"");
  return converted.text;
}

}  // namespace odmiennik::tools
