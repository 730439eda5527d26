// SPDX-License-Identifier: GPL-3.0-or-later
// Arguments and lines of input, one after the other.
#include "cli/asked_lines.h"

namespace odmiennik::cli {
namespace {

using Answering = std::function<void(const InputLine&, Utf8View)>;

// A program that only waits looks like one that hangs.
void sayWhatIsAwaited(Console& console, Utf8View awaited) {
  if (!isTerminal(Stream::in) || !isTerminal(Stream::err)) return;
  console.complain("czekam na " + Utf8Text(awaited) +
                   ", po jednym w wierszu (koniec: " + Utf8Text(endOfInputKeys()) + ").");
}

bool answerInput(Console& console, const Answering& answer,
                 const std::function<void()>& beforeWaiting, Utf8View awaited) {
  sayWhatIsAwaited(console, awaited);
  LineReader reader([&](std::span<char> buffer) {
    console.out().flush();
    beforeWaiting();
    return readInput(buffer);
  });
  InputLine line;
  while (!console.out().hasFailed() && reader.next(line)) answer(line, kInputLine);
  if (!reader.hasFailed()) return true;
  console.complain("nie można czytać standardowego wejścia.");
  return false;
}

}  // namespace

Utf8Text placeOf(const InputLine& line, Utf8View name) {
  return Utf8Text(name) + " " + decimal(line.number);
}

bool isBlankInput(const InputLine& line, Utf8View name) {
  return name == kInputLine && !line.isCut && line.bytes.find_first_not_of(" \t") == Utf8View::npos;
}

bool answerAsked(Console& console, std::span<const Utf8View> arguments, const Answering& answer,
                 const std::function<void()>& beforeWaiting, Utf8View awaited) {
  if (arguments.empty()) return answerInput(console, answer, beforeWaiting, awaited);
  beforeWaiting();
  bool isRead = true;
  std::size_t number = 0;
  for (const Utf8View argument : arguments) {
    ++number;
    if (argument == "-")
      isRead = answerInput(console, answer, beforeWaiting, awaited) && isRead;
    else
      answer({number, argument.substr(0, kLongestLine), argument.size() > kLongestLine},
             "argument");
  }
  return isRead;
}

}  // namespace odmiennik::cli
