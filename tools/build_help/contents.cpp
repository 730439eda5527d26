// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of spis.txt and indeks.txt.
#include "tools/build_help/contents.h"

#include <filesystem>

#include "tools/compile_data/source_file.h"

namespace odmiennik::tools {
namespace {

std::vector<Utf8Text> cells(const SourceFile& file, const SourceLine& line, std::size_t count) {
  std::vector<Utf8Text> parts = split(line.text, '|');
  if (parts.size() != count) file.fail(line, "expected " + decimal(count) + " parts");
  for (const Utf8Text& part : parts)
    if (part.empty()) file.fail(line, "an empty part");
  return parts;
}

void requirePage(const SourceFile& file, const SourceLine& line, const std::string& folder,
                 const Utf8Text& page) {
  const std::filesystem::path path =
      std::filesystem::path(folder) / "strony" / std::u8string(page.begin(), page.end());
  if (!std::filesystem::is_regular_file(path)) file.fail(line, "no page strony/" + page);
}

// "2" -> 2: one digit, at most one level deeper than the line before.
int levelOf(const SourceFile& file, const SourceLine& line, const Utf8Text& text, int levelBefore) {
  const int level = text.size() == 1 ? text[0] - '0' : 0;
  if (level < 1 || level > levelBefore + 1)
    file.fail(line, "level " + inQuotes(text) + " is no level here");
  return level;
}

std::vector<ContentsEntry> readContents(const std::string& folder) {
  const SourceFile file = readSource(folder + "/spis.txt");
  std::vector<ContentsEntry> entries;
  for (const SourceLine& line : file.lines) {
    const std::vector<Utf8Text> parts = cells(file, line, 3);
    requirePage(file, line, folder, parts[2]);
    const int levelBefore = entries.empty() ? 0 : entries.back().level;
    entries.push_back({levelOf(file, line, parts[0], levelBefore), parts[1], parts[2]});
  }
  return entries;
}

std::vector<IndexEntry> readIndex(const std::string& folder) {
  const SourceFile file = readSource(folder + "/indeks.txt");
  std::vector<IndexEntry> entries;
  for (const SourceLine& line : file.lines) {
    const std::vector<Utf8Text> parts = cells(file, line, 2);
    requirePage(file, line, folder, parts[1]);
    entries.push_back({parts[0], parts[1]});
  }
  return entries;
}

}  // namespace

HelpContents readHelpContents(const std::string& folder) {
  return {readContents(folder), readIndex(folder)};
}

}  // namespace odmiennik::tools
