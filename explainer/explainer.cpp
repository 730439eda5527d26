// SPDX-License-Identifier: GPL-3.0-or-later
// Explanations of forms.
#include "explainer/explainer.h"

#include "engine/departure.h"
#include "explainer/composition.h"
#include "explainer/form_names.h"
#include "explainer/pronoun_remarks.h"
#include "explainer/source_remarks.h"

namespace odmiennik::explainer {
namespace {

using engine::Lack;
using engine::Maker;
using engine::TracedConjugation;
using engine::Variety;

// Why the table has no form in the slot, of one that has lost none.
PhraseId reasonOfEmpty(const TracedConjugation& conjugation, int slot) {
  const auto& makings = conjugation.trace[slot].makings;
  const bool isNorm = !makings.empty() && makings.back().isOfNorm;
  if (isNorm) return PhraseId::unknownToNorm;
  if (conjugation.source == engine::Source::user) return PhraseId::emptyInRecord;
  if (conjugation.source == engine::Source::builtin) return PhraseId::unknownToGrammars;
  return PhraseId::notMade;
}

void addLack(Remarks& remarks, const TracedConjugation& conjugation, int slot) {
  constexpr PhraseId kReasons[] = {PhraseId::notMade, PhraseId::impersonal,
                                   PhraseId::thirdPersonOnly, PhraseId::reflexiveImperative};
  const Lack lack = conjugation.trace[slot].lack;
  const bool hasLost = lack != Lack::none;
  add(remarks,
      hasLost ? kReasons[static_cast<std::size_t>(lack)] : reasonOfEmpty(conjugation, slot));
}

Remarks compositionOf(const TracedConjugation& conjugation, int slot) {
  Remarks remarks;
  if (conjugation.forms[slot].empty()) {
    addLack(remarks, conjugation, slot);
    return remarks;
  }
  if (conjugation.forms.isPlaceholder(slot)) {
    add(remarks, PhraseId::nothingToMakeFrom);
    return remarks;
  }
  addStep(remarks, conjugation, conjugation.trace[slot].makings.back());
  addComposition(remarks, conjugation, slot);
  addPronouns(remarks, conjugation, slot);
  return remarks;
}

// The norm's tale of a form whose source has been told already.
void addNormOf(Explanation& explanation, const TracedConjugation& system,
               const TracedConjugation& norm) {
  const int slot = explanation.slot;
  const bool isComparable =
      system.source == engine::Source::rule || system.source == engine::Source::builtin;
  if (!isComparable || !engine::departs(system.shown, norm.shown, slot)) return;
  explanation.isDeparting = true;
  explanation.normPhrase = phraseOf(norm, slot);
  explanation.normRemarks = compositionOf(norm, slot);
}

}  // namespace

Explainer::Explainer(engine::UserVerbs& userVerbs)
    : driver_({index_, userVerbs, builtinVerbs_, rules_, shell_}) {}

bool Explainer::conjugate(const Asked& asked, Variety variety, TracedConjugation& conjugation) {
  conjugation.variety = variety;
  conjugation.flags = {};
  const engine::Outcome outcome = driver_.conjugate(conjugation, asked.infinitive);
  const bool isChosen = asked.auxiliary && conjugation.flags.auxiliary != *asked.auxiliary;
  if (outcome == engine::Outcome::conjugated && isChosen)
    engine::Driver::toggleAuxiliary(conjugation, *asked.auxiliary == engine::kAvoir, false);
  return outcome == engine::Outcome::conjugated;
}

bool Explainer::take(const Asked& asked) {
  const bool isConjugated = conjugate(asked, asked.variety, conjugation_);
  if (isConjugated && asked.variety == Variety::system) conjugate(asked, Variety::norm, norm_);
  return isConjugated;
}

Remarks Explainer::source() const {
  Remarks remarks;
  addSource(remarks, conjugation_);
  return remarks;
}

Explanation Explainer::explainComposition(int slot) const {
  Explanation explanation{.slot = slot, .phrase = phraseOf(conjugation_, slot)};
  explanation.remarks = compositionOf(conjugation_, slot);
  if (conjugation_.variety == Variety::system) addNormOf(explanation, conjugation_, norm_);
  return explanation;
}

Explanation Explainer::explain(int slot) const {
  Explanation explanation = explainComposition(slot);
  const Remarks how = std::move(explanation.remarks);
  explanation.remarks = source();
  explanation.remarks.insert(explanation.remarks.end(), how.begin(), how.end());
  return explanation;
}

}  // namespace odmiennik::explainer
