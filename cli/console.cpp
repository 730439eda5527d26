// SPDX-License-Identifier: GPL-3.0-or-later
// Where the command speaks.
#include "cli/console.h"

#include "dictionary/printable.h"

namespace odmiennik::cli {
namespace {

// Whatever a sentence quotes, the terminal shows it and does not obey it. What cannot be said on
// standard error cannot be said at all.
void say(std::string_view sentence) {
  static_cast<void>(write(Stream::err, dictionary::printable(sentence) + "\n"));
}

}  // namespace

void Console::complain(std::string_view subject, std::string_view sentence) {
  if (isOnTerminal_) out_.flush();
  std::string line = "odmien: ";
  line.append(subject).append(": ").append(sentence);
  say(line);
}

void Console::complain(std::string_view sentence) {
  if (isOnTerminal_) out_.flush();
  say("odmien: " + std::string(sentence));
}

ExitStatus Console::finish(ExitStatus status) {
  out_.flush();
  if (!out_.hasFailed()) return status;
  if (out_.result() != WriteResult::closed)
    complain("nie można zapisać wyniku: brak miejsca albo błąd zapisu.");
  return ExitStatus::fileTrouble;
}

}  // namespace odmiennik::cli
