// SPDX-License-Identifier: GPL-3.0-or-later
// Arguments and lines of input, one after the other.
#include "cli/asked_lines.h"

namespace odmiennik::cli {
namespace {

using Answering = std::function<void(const InputLine&, Utf8View)>;

bool answerInput(Console& console, const Answering& answer,
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

}  // namespace

bool answerAsked(Console& console, std::span<const Utf8View> arguments, const Answering& answer,
                 const std::function<void()>& beforeWaiting) {
  if (arguments.empty()) return answerInput(console, answer, beforeWaiting);
  beforeWaiting();
  bool isRead = true;
  std::size_t number = 0;
  for (const Utf8View argument : arguments) {
    ++number;
    if (argument == "-")
      isRead = answerInput(console, answer, beforeWaiting) && isRead;
    else
      answer({number, argument.substr(0, kLongestLine), argument.size() > kLongestLine},
             "argument");
  }
  return isRead;
}

}  // namespace odmiennik::cli
