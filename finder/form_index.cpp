// SPDX-License-Identifier: GPL-3.0-or-later
// The simple forms of all verbs of the index.
#include "finder/form_index.h"

#include "dictionary/verb_index.h"

namespace odmiennik::finder::detail {

std::string_view stemOf(std::uint32_t verb) {
  return dictionary::verbAt(static_cast<int>(verb)).substr(0, data::kStemSize[verb]);
}

// Most forms have no accents and are compared as they are.
bool isSpeltWithoutAccents(const FoundForm& form, std::string_view folded) {
  if (form.isSpelt(folded)) return true;
  return takeOff(form.stem, folded) && takeOff(form.ending, folded) && folded.empty();
}

}  // namespace odmiennik::finder::detail
