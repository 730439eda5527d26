// SPDX-License-Identifier: GPL-3.0-or-later
// What a form is made of.
#pragma once

#include "engine/conjugation.h"
#include "explainer/explanation.h"

namespace odmiennik::explainer {

// Stem, change of spelling and ending; the form that it was derived from; auxiliary, participle and
// agreement. Each of several forms in one slot is told for itself. The slot has a form.
void addComposition(Remarks& remarks, const engine::TracedConjugation& conjugation, int slot);

}  // namespace odmiennik::explainer
