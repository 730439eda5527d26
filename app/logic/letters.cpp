// Typing French letters by clicking.
#include "app/logic/letters.h"

#include <algorithm>

namespace odmiennik::app {

LetterClick letterBoxClicked(bool isTicked, bool isReadOnly) {
  return {.insertsLetter = !isTicked && !isReadOnly, .unticks = isTicked};
}

TextSelection withLetter(const TextSelection& box, std::string_view letter) {
  TextSelection typed = box;
  typed.start = std::min(typed.start, typed.text.size());
  typed.text.replace(typed.start, typed.length, letter);
  typed.start += letter.size();
  typed.length = 0;
  return typed;
}

}  // namespace odmiennik::app
