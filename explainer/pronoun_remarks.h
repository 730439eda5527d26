// SPDX-License-Identifier: GPL-3.0-or-later
// What is to be said of the pronouns of a form.
#pragma once

#include "engine/conjugation.h"
#include "explainer/explanation.h"

namespace odmiennik::explainer {

// The reflexive pronoun, where it stands and why it is elided; j' and why, or why not; a pronoun of
// a record that is not shown. A subject pronoun that is as always has no remark.
void addPronouns(Remarks& remarks, const engine::TracedConjugation& conjugation, int slot);

}  // namespace odmiennik::explainer
