// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of lines.
#include "cli/line_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace odmiennik::cli {
namespace {

// Hands out `text` in blocks of `blockSize` bytes.
LineReader::Source sourceOf(Utf8Text text, std::size_t blockSize) {
  return [text = std::move(text), blockSize, at = std::size_t{0}](std::span<char> buffer) mutable {
    const std::size_t size = std::min({blockSize, buffer.size(), text.size() - at});
    std::copy_n(text.begin() + static_cast<std::ptrdiff_t>(at), size, buffer.begin());
    at += size;
    return std::optional(size);
  };
}

std::vector<Utf8Text> linesOf(const Utf8Text& text, std::size_t blockSize = 7) {
  LineReader reader(sourceOf(text, blockSize));
  std::vector<Utf8Text> lines;
  for (InputLine line; reader.next(line);) lines.emplace_back(line.bytes);
  return lines;
}

using Lines = std::vector<Utf8Text>;

TEST(line_reader, splits_at_line_feeds_whatever_the_blocks) {
  for (std::size_t blockSize = 1; blockSize < 20; ++blockSize)
    EXPECT_EQ(linesOf("aller\n\nse laver\nvenir\n", blockSize),
              (Lines{"aller", "", "se laver", "venir"}))
        << blockSize;
}

TEST(line_reader, drops_one_carriage_return_before_the_line_feed) {
  EXPECT_EQ(linesOf("aller\r\nve\rnir\r\r\n"), (Lines{"aller", "ve\rnir\r"}));
}

TEST(line_reader, a_last_line_without_an_end_counts) {
  EXPECT_EQ(linesOf("aller\nvenir"), (Lines{"aller", "venir"}));
}

TEST(line_reader, passes_over_one_byte_order_mark_at_the_start_whatever_the_blocks) {
  for (std::size_t blockSize = 1; blockSize < 9; ++blockSize) {
    EXPECT_EQ(linesOf("\uFEFFaller\n\uFEFFvenir\n", blockSize), (Lines{"aller", "\uFEFFvenir"}));
    EXPECT_EQ(linesOf("\uFEFF\uFEFFaller", blockSize), (Lines{"\uFEFFaller"}));
    EXPECT_EQ(linesOf("\xEF\xBB", blockSize), (Lines{"\xEF\xBB"}));
    EXPECT_EQ(linesOf("\uFEFF", blockSize), Lines{});
  }
}

TEST(line_reader, asks_once_at_the_end_of_no_input) {
  int asked = 0;
  LineReader reader([&asked](std::span<char>) {
    ++asked;
    return std::optional<std::size_t>(0);
  });
  InputLine line;
  EXPECT_FALSE(reader.next(line));
  EXPECT_EQ(asked, 1);
}

TEST(line_reader, no_input_is_no_line) { EXPECT_EQ(linesOf(""), Lines{}); }

TEST(line_reader, counts_lines_from_one) {
  LineReader reader(sourceOf("a\nb\n", 2));
  InputLine line;
  ASSERT_TRUE(reader.next(line));
  ASSERT_TRUE(reader.next(line));
  EXPECT_EQ(line.number, 2U);
}

TEST(line_reader, a_line_of_just_the_limit_is_whole) {
  LineReader reader(sourceOf(Utf8Text(kLongestLine, 'a') + "\n", 1000));
  InputLine line;
  ASSERT_TRUE(reader.next(line));
  EXPECT_FALSE(line.isCut);
  EXPECT_EQ(line.bytes.size(), kLongestLine);
}

TEST(line_reader, a_longer_line_is_cut_and_the_next_one_is_read) {
  LineReader reader(sourceOf(Utf8Text(10 * kLongestLine, 'a') + "\naller\n", kLongestLine));
  InputLine line;
  ASSERT_TRUE(reader.next(line));
  EXPECT_TRUE(line.isCut);
  EXPECT_EQ(line.bytes.size(), kLongestLine);
  ASSERT_TRUE(reader.next(line));
  EXPECT_FALSE(line.isCut);
  EXPECT_EQ(line.bytes, "aller");
}

TEST(line_reader, asks_for_more_only_when_no_line_is_left) {
  int asked = 0;
  LineReader reader([&](std::span<char> buffer) -> std::optional<std::size_t> {
    if (++asked > 1) return 0;
    std::copy_n("a\nb\n", 4, buffer.begin());
    return 4;
  });
  InputLine line;
  ASSERT_TRUE(reader.next(line));
  ASSERT_TRUE(reader.next(line));
  EXPECT_EQ(asked, 1);
  EXPECT_FALSE(reader.next(line));
}

TEST(line_reader, remembers_that_reading_failed) {
  LineReader reader([](std::span<char>) { return std::optional<std::size_t>(); });
  InputLine line;
  EXPECT_FALSE(reader.next(line));
  EXPECT_TRUE(reader.hasFailed());
}

}  // namespace
}  // namespace odmiennik::cli
