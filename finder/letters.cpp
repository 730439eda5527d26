// SPDX-License-Identifier: GPL-3.0-or-later
// Letters without their accents.
#include "finder/letters.h"

namespace odmiennik::finder {

// A second letter is written behind each one, and stays where there are two. Of what is too long so
// much is left that one sees it.
std::string_view Folded::fold(std::string_view word) {
  word = word.substr(0, kLongestWord + 1);
  char* next = letters_.data();
  for (const char letter : word) {
    *next++ = engine::plainLetter(letter);
    *next = 'e';
    next += engine::isTwoLetters(letter) ? 1 : 0;
  }
  return {letters_.data(), static_cast<std::size_t>(next - letters_.data())};
}

}  // namespace odmiennik::finder
