// SPDX-License-Identifier: GPL-3.0-or-later
// Standard output.
#include "cli/output.h"

namespace odmiennik::cli {

void Output::flushIfLarge() {
  constexpr std::size_t kLarge = 65536;
  if (text_.size() >= kLarge) flush();
}

void Output::flush() {
  if (!hasFailed() && !text_.empty()) result_ = write(Stream::out, text_);
  text_.clear();
}

}  // namespace odmiennik::cli
