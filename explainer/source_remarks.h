// SPDX-License-Identifier: GPL-3.0-or-later
// Where the forms of a verb come from.
#pragma once

#include "engine/conjugation.h"
#include "explainer/explanation.h"

namespace odmiennik::explainer {

// The user's file, the built-in table, or the rule and the ending that has led to it.
void addSource(Remarks& remarks, const engine::TracedConjugation& conjugation);

// What is to be said of one form beside it: that its verb's rule leaves it regular, that the verb
// stands in the rule's list, or that today's norm has written it anew.
void addStep(Remarks& remarks, const engine::TracedConjugation& conjugation,
             const engine::Making& making);

}  // namespace odmiennik::explainer
