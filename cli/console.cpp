// SPDX-License-Identifier: GPL-3.0-or-later
// Where the command speaks.
#include "cli/console.h"

#include "dictionary/printable.h"

namespace odmiennik::cli {
namespace {

// Whatever a sentence quotes, the terminal shows it and does not obey it. What cannot be said on
// standard error cannot be said at all.
void say(Utf8View sentence) {
  static_cast<void>(write(Stream::err, dictionary::printable(sentence) + "\n"));
}

}  // namespace

void Console::complain(Utf8View subject, Utf8View sentence) {
  if (isOnTerminal_) out_.flush();
  Utf8Text line = "odmien: ";
  line.append(subject).append(": ").append(sentence);
  say(line);
}

void Console::complain(Utf8View sentence) {
  if (isOnTerminal_) out_.flush();
  say("odmien: " + Utf8Text(sentence));
}

ExitStatus Console::finish(ExitStatus status) {
  out_.flush();
  if (!out_.hasFailed()) return status;
  if (out_.result() != WriteResult::closed)
    complain("nie można zapisać wyniku: brak miejsca albo błąd zapisu.");
  return ExitStatus::fileTrouble;
}

}  // namespace odmiennik::cli
