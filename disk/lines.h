// SPDX-License-Identifier: GPL-3.0-or-later
// A text file line by line, in little memory whatever the file holds.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "disk/file_system.h"

namespace odmiennik::disk {

// A longer line is nothing that this program has written, and is not kept in memory.
inline constexpr std::size_t kLongestLine = std::size_t{1} << 20;

// A line, or a piece of one that is too long.
struct Line {
  std::string_view text;
  std::string_view end;     // CR LF, LF or CR; empty at the file's end and behind a cut piece
  bool isCut = false;       // the line goes on, unless the file ends here
  std::uint64_t start = 0;  // how many bytes the reader has read before it
};

enum class LineRead : std::uint8_t { line, endOfFile, failed };

// Views of a line hold until the next one is read.
class LineReader {
 public:
  explicit LineReader(InputFile& file);

  // A line of more than kLongestLine bytes may come in pieces; all but its last are cut ones.
  [[nodiscard]] LineRead next(Line& line);

 private:
  [[nodiscard]] bool findLineEnd();
  [[nodiscard]] std::size_t nextLineFeed(std::size_t from);
  [[nodiscard]] std::size_t lineEndLength() const;
  void take(Line& line, std::size_t endLength);
  [[nodiscard]] LineRead takeCut(Line& line);
  void readMore();

  InputFile& file_;
  std::unique_ptr<char[]> buffer_;
  std::uint64_t dropped_ = 0;  // bytes read before those in the buffer
  std::size_t first_ = 0;      // the line begins here
  std::size_t last_ = 0;       // behind the last byte read
  std::size_t searched_ = 0;   // no line end before this one; the line end itself once found
  std::size_t lineFeed_ = 0;   // the next LF, or last_
  bool isAtEnd_ = false;
  bool isFailed_ = false;
};

}  // namespace odmiennik::disk
