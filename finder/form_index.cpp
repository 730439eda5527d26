// SPDX-License-Identifier: GPL-3.0-or-later
// The simple forms of all verbs of the index.
#include "finder/form_index.h"

namespace odmiennik::finder::detail {

bool compare(std::string_view word, std::string_view folded, FoundForm& form) {
  form.isExact = word.size() == form.stem.size() + form.ending.size() &&
                 word.starts_with(form.stem) && word.ends_with(form.ending);
  if (form.isExact) return true;
  return takeOff(form.stem, folded) && takeOff(form.ending, folded) && folded.empty();
}

}  // namespace odmiennik::finder::detail
