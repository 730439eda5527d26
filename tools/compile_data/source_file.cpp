// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of text sources.
#include "tools/compile_data/source_file.h"

#include <fstream>
#include <sstream>

#include "engine/windows1252.h"

namespace odmiennik::tools {

SourceError::SourceError(std::string_view file, int line, Utf8View reason)
    : std::runtime_error(std::string(file) + ":" + std::to_string(line) + ": " +
                         std::string(bytesOf(reason))) {}

std::runtime_error fault(Utf8View reason) {
  return std::runtime_error(std::string(bytesOf(reason)));
}

void SourceFile::fail(const SourceLine& line, Utf8View reason) const {
  throw SourceError(name, line.number, reason);
}

Utf8View trim(Utf8View text) {
  constexpr Utf8View kBlanks = " \t\r";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == Utf8View::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

Utf8Text inQuotes(Utf8View text) { return Utf8Text("\"").append(text).append("\""); }

namespace {

bool isUtf8(Utf8View text) {
  while (!text.empty()) {
    const int length = engine::decodeUtf8(text).length;
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
    const Utf8View line = trim(asUtf8(text));
    if (!isUtf8(line)) throw SourceError(path, number, "bytes that are no UTF-8");
    if (!line.empty() && line.front() != '#') file.lines.push_back({Utf8Text(line), number});
  }
  if (file.lines.empty()) throw SourceError(path, 1, "nothing stands in it");
  return file;
}

std::vector<Utf8Text> split(Utf8View text, char separator) {
  std::vector<Utf8Text> parts;
  for (auto end = text.find(separator); end != Utf8View::npos; end = text.find(separator)) {
    parts.emplace_back(trim(text.substr(0, end)));
    text.remove_prefix(end + 1);
  }
  parts.emplace_back(trim(text));
  return parts;
}

std::string french(const SourceFile& file, const SourceLine& line, Utf8View utf8) {
  const engine::FromUtf8 converted = engine::fromUtf8(utf8);
  if (converted.fault != engine::Utf8Fault::none)
    file.fail(line, "a letter outside Windows-1252 in " + inQuotes(utf8));
  return converted.text;
}

}  // namespace odmiennik::tools
