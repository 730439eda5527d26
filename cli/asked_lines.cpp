// SPDX-License-Identifier: GPL-3.0-or-later
// Arguments and lines of input, one after the other.
#include "cli/asked_lines.h"

namespace odmiennik::cli {

void answerArguments(std::span<const Utf8View> arguments,
                     const std::function<void(const InputLine&, Utf8View)>& answer) {
  std::size_t number = 0;
  for (const Utf8View argument : arguments) {
    const InputLine line{++number, argument.substr(0, kLongestLine),
                         argument.size() > kLongestLine};
    answer(line, "argument");
  }
}

bool answerInput(Console& console, const std::function<void(const InputLine&, Utf8View)>& answer,
                 const std::function<void()>& beforeWaiting) {
  LineReader reader([&](std::span<char> buffer) {
    console.out().flush();
    beforeWaiting();
    return readInput(buffer);
  });
  InputLine line;
  while (!console.out().hasFailed() && reader.next(line)) answer(line, "wiersz");
  if (!reader.hasFailed()) return true;
  console.complain("nie można czytać standardowego wejścia.");
  return false;
}

}  // namespace odmiennik::cli
