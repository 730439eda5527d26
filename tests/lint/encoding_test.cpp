// SPDX-License-Identifier: GPL-3.0-or-later
// Sources and data are UTF-8 without a mark at the front, with LF line ends and no stray blanks.
#include <gtest/gtest.h>

#include "engine/windows1252.h"
#include "tests/lint/source_tree.h"

namespace odmiennik::lint {
namespace {

std::vector<Source> texts() {
  std::vector<Source> all = sources({".h", ".cpp", ".txt", ".md", ".cmake", ".json", ".tsv"});
  // Damaged files are damaged on purpose.
  std::erase_if(all, [](const Source& source) { return source.path.starts_with("tests/broken/"); });
  return all;
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const int length = engine::decodeUtf8(asUtf8(text)).length;
    if (length == 0) return false;
    text.remove_prefix(static_cast<std::size_t>(length));
  }
  return true;
}

TEST(encoding, every_text_is_utf8) {
  for (const Source& source : texts()) EXPECT_TRUE(isUtf8(source.text)) << source.path;
}

TEST(encoding, no_text_begins_with_a_byte_order_mark) {
  for (const Source& source : texts())
    EXPECT_FALSE(source.text.starts_with("\xEF\xBB\xBF")) << source.path;
}

TEST(encoding, lines_end_with_lf_alone) {
  for (const Source& source : texts())
    EXPECT_EQ(source.text.find('\r'), std::string::npos) << source.path;
}

TEST(encoding, every_text_ends_with_a_line_end) {
  for (const Source& source : texts()) EXPECT_TRUE(source.text.ends_with('\n')) << source.path;
}

TEST(encoding, cpp_lines_have_neither_tabs_nor_blanks_at_their_end) {
  for (const Source& source : cppSources())
    for (const std::string& line : linesOf(source.text)) {
      EXPECT_EQ(line.find('\t'), std::string::npos) << source.path << ": " << line;
      EXPECT_FALSE(line.ends_with(' ')) << source.path << ": " << line;
    }
}

}  // namespace
}  // namespace odmiennik::lint
