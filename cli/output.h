// SPDX-License-Identifier: GPL-3.0-or-later
// Standard output: texts are gathered and written in large blocks; a failure is remembered.
#pragma once

#include "cli/system.h"
#include "engine/utf8.h"

namespace odmiennik::cli {

class Output {
 public:
  // Where writers append; nothing is written before a flush.
  [[nodiscard]] Utf8Text& text() { return text_; }

  // Writes what was gathered once it is worth a system call.
  void flushIfLarge();

  // Writes what was gathered. A reader who has gone away ends the program, quietly, as the system
  // does it. After any other failure everything further is dropped.
  void flush();

  [[nodiscard]] bool hasFailed() const { return result_ != WriteResult::written; }
  [[nodiscard]] WriteResult result() const { return result_; }

 private:
  Utf8Text text_;
  WriteResult result_ = WriteResult::written;
};

}  // namespace odmiennik::cli
