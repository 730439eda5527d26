// SPDX-License-Identifier: GPL-3.0-or-later
// Standard output.
#include "cli/output.h"

namespace odmiennik::cli {

void Output::flushIfLarge() {
  constexpr std::size_t kLarge = 65536;
  if (text_.size() >= kLarge) flush();
}

void Output::flush() {
  const bool isAsked = !hasFailed() && !text_.empty();
  if (isAsked) result_ = write(Stream::out, text_);
  text_.clear();
  if (isAsked && result_ == WriteResult::closed) endAtClosedPipe();
}

}  // namespace odmiennik::cli
