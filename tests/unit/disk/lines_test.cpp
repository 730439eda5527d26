// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of a file: the three line ends, wherever reading happens to stop, and lines without end.
#include "disk/lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace odmiennik::disk {
namespace {

// Gives at most `step` bytes at a time, so that line ends fall on every border.
class TextInput final : public InputFile {
 public:
  TextInput(std::string text, std::size_t step) : text_(std::move(text)), step_(step) {}
  std::ptrdiff_t read(char* buffer, std::size_t size) override {
    const std::size_t length = std::min({size, step_, text_.size() - position_});
    text_.copy(buffer, length, position_);
    position_ += length;
    return static_cast<std::ptrdiff_t>(length);
  }

 private:
  std::string text_;
  std::size_t step_;
  std::size_t position_ = 0;
};

class FailingInput final : public InputFile {
 public:
  std::ptrdiff_t read(char* buffer, std::size_t) override {
    if (isStarted_) return -1;
    isStarted_ = true;
    *buffer = 'a';
    return 1;
  }

 private:
  bool isStarted_ = false;
};

using Texts = std::vector<std::string>;

Texts linesOfText(const std::string& text, std::size_t step) {
  TextInput file(text, step);
  LineReader reader(file);
  Texts lines;
  Line line;
  while (reader.next(line) == LineRead::line)
    lines.push_back(std::string(line.text) + "|" + std::string(line.end));
  return lines;
}

TEST(file_lines, end_in_carriage_return_and_line_feed_or_one_of_them) {
  for (const std::size_t step : {1, 2, 3, 100})
    EXPECT_EQ(linesOfText("a\r\nb\nc\r\r\nd\re", step),
              (Texts{"a|\r\n", "b|\n", "c|\r", "|\r\n", "d|\r", "e|"}))
        << step;
}

TEST(file_lines, an_empty_file_has_no_line) { EXPECT_EQ(linesOfText("", 100), Texts{}); }

TEST(file_lines, a_line_end_at_the_files_end_begins_no_further_line) {
  EXPECT_EQ(linesOfText("a\r\n", 100), Texts{"a|\r\n"});
  EXPECT_EQ(linesOfText("a\r", 100), Texts{"a|\r"});
}

TEST(file_lines, many_lines_come_through_one_buffer) {
  std::string text;
  Texts expected;
  for (int number = 0; number < 300'000; ++number) {
    expected.push_back(std::to_string(number) + "|\r\n");
    text += std::to_string(number) + "\r\n";
  }
  EXPECT_EQ(linesOfText(text, 70'000), expected);
}

TEST(file_lines, the_longest_line_comes_whole) {
  const std::string longest(kLongestLine, 'x');
  for (const std::size_t step : {65'536, 65'535})
    for (const char* end : {"\r\n", "\r", "\n", ""})
      EXPECT_TRUE(linesOfText(longest + end, step) == Texts{longest + "|" + end}) << step;
}

TEST(file_lines, a_longer_line_comes_in_pieces_that_make_it_up) {
  const std::string text = std::string(3 * kLongestLine, 'x') + "\r\nnext\r\n";
  TextInput file(text, 65'536);
  LineReader reader(file);
  std::string joined;
  int cuts = 0;
  Line line;
  while (reader.next(line) == LineRead::line) {
    joined.append(line.text).append(line.end);
    cuts += line.isCut;
  }
  EXPECT_TRUE(joined == text);
  EXPECT_EQ(cuts, 2);
}

TEST(file_lines, a_failed_read_is_no_end_of_file) {
  FailingInput file;
  LineReader reader(file);
  Line line;
  EXPECT_EQ(reader.next(line), LineRead::failed);
}

}  // namespace
}  // namespace odmiennik::disk
