// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of lines.
#include "cli/line_reader.h"

namespace odmiennik::cli {

bool LineReader::next(InputLine& line) {
  kept_.clear();
  isKeeping_ = isCut_ = false;
  for (;;) {
    if (unread_.empty() && !fill()) {
      if (!isKeeping_) return false;
      line = lineOf(kept_, false);
      return true;
    }
    const auto end = unread_.find('\n');
    const Utf8View part = unread_.substr(0, end);
    unread_.remove_prefix(end == std::string::npos ? unread_.size() : end + 1);
    if (end != std::string::npos && !isKeeping_) {
      line = lineOf(part, true);
      return true;
    }
    keep(part);
    if (end == std::string::npos) continue;
    line = lineOf(kept_, true);
    return true;
  }
}

// Reads behind the first `kept` bytes of the block; false at the end.
bool LineReader::readBehind(std::size_t kept) {
  const std::optional<std::size_t> size = source_(std::span(block_).subspan(kept));
  hasFailed_ = hasFailed_ || !size;
  unread_ = {block_.data(), kept + size.value_or(0)};
  return size.value_or(0) != 0;
}

bool LineReader::fill() {
  constexpr Utf8View kByteOrderMark = "\uFEFF";
  if (!isAtStart_) return readBehind(0);
  isAtStart_ = false;
  bool isOpen = true;  // asked no more once it has ended: a terminal would wait for another end
  while (isOpen && unread_.size() < kByteOrderMark.size() && kByteOrderMark.starts_with(unread_))
    isOpen = readBehind(unread_.size());
  if (unread_.starts_with(kByteOrderMark)) unread_.remove_prefix(kByteOrderMark.size());
  return !unread_.empty() || (isOpen && readBehind(0));
}

void LineReader::keep(Utf8View part) {
  isKeeping_ = true;
  const std::size_t room = kLongestLine - kept_.size();
  isCut_ = isCut_ || part.size() > room;
  kept_.append(part.substr(0, room));
}

InputLine LineReader::lineOf(Utf8View bytes, bool isEnded) {
  if (isEnded && !isCut_ && bytes.ends_with('\r')) bytes.remove_suffix(1);
  return {.number = ++lineCount_, .bytes = bytes, .isCut = isCut_};
}

}  // namespace odmiennik::cli
