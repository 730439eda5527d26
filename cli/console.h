// SPDX-License-Identifier: GPL-3.0-or-later
// Where the command speaks: data to standard output, sentences to standard error.
#pragma once

#include "cli/output.h"
#include "engine/utf8.h"

namespace odmiennik::cli {

// What the exit codes of the command mean.
enum class ExitStatus { allConjugated = 0, verbRefused = 1, wrongUsage = 2, fileTrouble = 3 };

class Console {
 public:
  Console() : isOnTerminal_(isTerminal(Stream::out)) {}

  [[nodiscard]] Output& out() { return out_; }
  [[nodiscard]] bool isOnTerminal() const { return isOnTerminal_; }

  // Writes "odmien: subject: sentence" to standard error, quoted text of any kind in it shown as
  // escapes where a terminal would obey it; on a terminal behind the data so far.
  void complain(Utf8View subject, Utf8View sentence);
  void complain(Utf8View sentence);

  // Writes what is left. Data that could not be written is a file's trouble and is complained of,
  // but for a reader who has gone away.
  [[nodiscard]] ExitStatus finish(ExitStatus status);

 private:
  Output out_;
  bool isOnTerminal_;
};

}  // namespace odmiennik::cli
