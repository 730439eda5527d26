// Typing French letters by clicking.
#include "app/logic/letters.h"

namespace odmiennik::app {

LetterClick letterBoxClicked(bool isTicked, bool isReadOnly) {
  return {.insertsLetter = !isTicked && !isReadOnly, .unticks = isTicked};
}

}  // namespace odmiennik::app
