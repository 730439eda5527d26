// SPDX-License-Identifier: GPL-3.0-or-later
// How a whole verb is conjugated: its source and auxiliary, and the forms of each tense
// that are made in different ways.
#pragma once

#include <vector>

#include "explainer/explainer.h"

namespace odmiennik::explainer {

struct VerbTable {
  Utf8Text source;     // "reguła -ger (wzór: manger)"
  Utf8Text auxiliary;  // "avoir", "avoir (może też mieć être)"
  // Of each tense the first form, then each that is made otherwise than those before it: of manger
  // "je mange" and "nous mangeons". A tense without a form has its reason.
  std::vector<Explanation> forms;
};

// Of the verb that the explainer has taken last.
[[nodiscard]] VerbTable tableOf(const Explainer& explainer);

}  // namespace odmiennik::explainer
