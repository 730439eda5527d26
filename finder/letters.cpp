// SPDX-License-Identifier: GPL-3.0-or-later
// Letters without their accents.
#include "finder/letters.h"

namespace odmiennik::finder {

void Folded::push(char letter) {
  isTooLong_ = isTooLong_ || size_ == letters_.size();
  if (!isTooLong_) letters_[size_++] = letter;
}

void Folded::append(std::string_view word) {
  for (const char letter : word) {
    push(detail::kPlain[static_cast<unsigned char>(letter)]);
    if (detail::isTwoLetters(letter)) push('e');
  }
}

}  // namespace odmiennik::finder
