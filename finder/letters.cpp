// SPDX-License-Identifier: GPL-3.0-or-later
// Letters without their accents.
#include "finder/letters.h"

#include <algorithm>

namespace odmiennik::finder {

// A second letter is written behind each one, and stays where there are two. Room is asked for
// once: a question at every letter costs as much as the look-up of a word's stem.
Folded::Folded(std::string_view word) {
  isTooLong_ = 2 * word.size() > letters_.size() && sizeOf(word) > kLongestWord;
  if (isTooLong_) return;
  for (const char letter : word) {
    letters_[size_++] = detail::kPlain[static_cast<unsigned char>(letter)];
    letters_[size_] = 'e';
    size_ += detail::isTwoLetters(letter) ? 1 : 0;
  }
}

std::size_t Folded::sizeOf(std::string_view word) {
  return word.size() + static_cast<std::size_t>(std::ranges::count_if(word, detail::isTwoLetters));
}

}  // namespace odmiennik::finder
