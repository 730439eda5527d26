// SPDX-License-Identifier: GPL-3.0-or-later
// Cutting a file into lines within one buffer.
#include "disk/lines.h"

#include <algorithm>
#include <cstring>

namespace odmiennik::disk {
namespace {

constexpr std::size_t kChunk = std::size_t{1} << 16;
// The longest line, the CR behind it, and what is read to see whether a LF follows.
constexpr std::size_t kBufferSize = kLongestLine + 1 + kChunk;

std::size_t find(const char* buffer, char wanted, std::size_t from, std::size_t to) {
  const void* found = std::memchr(buffer + from, wanted, to - from);
  return found ? static_cast<std::size_t>(static_cast<const char*>(found) - buffer) : to;
}

}  // namespace

bool InputFile::skip(std::uint64_t count) {
  char passed[4096];
  while (count > 0) {
    const std::uint64_t size = std::min<std::uint64_t>(count, sizeof passed);
    const std::ptrdiff_t got = read(passed, static_cast<std::size_t>(size));
    if (got <= 0) return false;
    count -= static_cast<std::uint64_t>(got);
  }
  return true;
}

LineReader::LineReader(InputFile& file)
    : file_(file), buffer_(std::make_unique_for_overwrite<char[]>(kBufferSize)) {}

LineRead LineReader::next(Line& line) {
  searched_ = first_;
  while (!findLineEnd()) {
    if (isFailed_) return LineRead::failed;
    if (isAtEnd_) break;
    if (searched_ - first_ > kLongestLine) return takeCut(line);
    readMore();
  }
  if (first_ == last_) return LineRead::endOfFile;
  take(line, lineEndLength());
  return LineRead::line;
}

std::size_t LineReader::lineEndLength() const {
  if (searched_ == last_) return 0;
  const bool isLineFeedBehind = searched_ + 1 < last_ && buffer_[searched_ + 1] == '\n';
  return buffer_[searched_] == '\r' && isLineFeedBehind ? 2 : 1;
}

// Moves searched_ to the line's end; false when more has to be read to tell where it is.
bool LineReader::findLineEnd() {
  const std::size_t lineFeed = nextLineFeed(searched_);
  searched_ = find(buffer_.get(), '\r', searched_, lineFeed);
  if (searched_ == last_) return false;
  const bool mayLineFeedFollow = buffer_[searched_] == '\r' && searched_ + 1 == last_;
  return !mayLineFeedFollow || isAtEnd_;
}

// Remembered, since a file may hold no LF at all and many lines.
std::size_t LineReader::nextLineFeed(std::size_t from) {
  if (lineFeed_ < from) lineFeed_ = find(buffer_.get(), '\n', from, last_);
  return lineFeed_;
}

void LineReader::take(Line& line, std::size_t endLength) {
  const char* start = buffer_.get() + first_;
  line = {{start, searched_ - first_},
          {buffer_.get() + searched_, endLength},
          false,
          dropped_ + first_};
  first_ = searched_ + endLength;
}

// A CR at the end of the piece may belong to a CR LF, so it is left for the next one.
LineRead LineReader::takeCut(Line& line) {
  take(line, 0);
  line.isCut = true;
  return LineRead::line;
}

void LineReader::readMore() {
  if (last_ + kChunk > kBufferSize) {
    std::memmove(buffer_.get(), buffer_.get() + first_, last_ - first_);
    searched_ -= first_;
    lineFeed_ -= first_;
    last_ -= first_;
    dropped_ += first_;
    first_ = 0;
  }
  const std::size_t room = std::min(kChunk, kBufferSize - last_);
  const std::ptrdiff_t got = file_.read(buffer_.get() + last_, room);
  isAtEnd_ = got <= 0;
  isFailed_ = got < 0;
  if (isAtEnd_) return;
  const std::size_t unread = last_;
  last_ += static_cast<std::size_t>(got);
  if (lineFeed_ == unread) lineFeed_ = find(buffer_.get(), '\n', unread, last_);
}

}  // namespace odmiennik::disk
