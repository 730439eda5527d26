// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of lines from a source of bytes, in bounded memory.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>

#include "engine/utf8.h"

namespace odmiennik::cli {

// No verb and no record comes near this; what a longer line holds behind it is passed over.
inline constexpr std::size_t kLongestLine = 65536;

// A line without its end; `bytes` is valid until the next one is asked for.
struct InputLine {
  std::size_t number = 0;  // counted from 1
  Utf8View bytes;
  bool isCut = false;  // longer than kLongestLine
};

// Lines end with LF or CR LF; a last line without an end counts. One byte-order mark at the start
// is passed over.
class LineReader {
 public:
  // Fills the buffer and returns how much it got: 0 at the end, nothing when reading failed.
  using Source = std::function<std::optional<std::size_t>(std::span<char>)>;

  explicit LineReader(Source source) : source_(std::move(source)) {}

  // Reads one line; false at the end. The source is asked only when no complete line is left.
  [[nodiscard]] bool next(InputLine& line);

  [[nodiscard]] bool hasFailed() const { return hasFailed_; }

 private:
  bool fill();
  bool readBehind(std::size_t kept);
  void keep(Utf8View part);
  [[nodiscard]] InputLine lineOf(Utf8View bytes, bool isEnded);

  Source source_;
  std::array<char, kLongestLine> block_{};
  Utf8View unread_;
  Utf8Text kept_;  // the beginning of a line that reaches over blocks
  bool isAtStart_ = true;
  bool isKeeping_ = false;
  bool isCut_ = false;
  bool hasFailed_ = false;
  std::size_t lineCount_ = 0;
};

}  // namespace odmiennik::cli
