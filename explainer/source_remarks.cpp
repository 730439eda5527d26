// SPDX-License-Identifier: GPL-3.0-or-later
// Sources of forms.
#include "explainer/source_remarks.h"

#include "engine/windows1252.h"
#include "explainer/form_names.h"

namespace odmiennik::explainer {
namespace {

using engine::ClaimedBy;

constexpr Utf8View kRegular = "regular";

void addRegular(Remarks& remarks, const ClaimedBy& claim, const ModelVerb& row) {
  const Utf8Text ending = engine::toUtf8(claim.ending);
  if (ending.empty()) return addNamed(remarks, PhraseId::regular, {row.verb});
  addNamed(remarks, PhraseId::stopRow, {row.verb, ending});
}

// The ending is told where the rule's name does not tell it.
void addRule(Remarks& remarks, const ClaimedBy& claim) {
  const ModelVerb* row = modelVerbOf(claim.model, false);
  if (row == nullptr) return;
  if (claim.model == kRegular) return addRegular(remarks, claim, *row);
  const Utf8Text ending = engine::toUtf8(claim.ending);
  if (row->rule == "-" + ending) return addNamed(remarks, PhraseId::rule, {row->rule, row->verb});
  addNamed(remarks, PhraseId::ruleByEnding, {row->rule, row->verb, ending});
}

void addNorm(Remarks& remarks, const engine::TracedConjugation& conjugation) {
  const ClaimedBy& claim = conjugation.trace.norm();
  if (claim.isWholeVerb)
    add(remarks, PhraseId::normByVerb);
  else
    add(remarks, PhraseId::normByEnding, {claim.ending});
  if (const ModelVerb* row = modelVerbOf(claim.model, true))
    addNamed(remarks, PhraseId::normAs, {row->verb});
}

}  // namespace

void addSource(Remarks& remarks, const engine::TracedConjugation& conjugation) {
  switch (conjugation.source) {
    case engine::Source::user:
      return add(remarks, PhraseId::ownVerb);
    case engine::Source::builtin:
      return add(remarks, PhraseId::builtinVerb);
    case engine::Source::rule:
      return addRule(remarks, conjugation.trace.rule());
    case engine::Source::none:
      break;
  }
  const ClaimedBy& claim = conjugation.trace.rule();
  if (claim.ending.empty()) return add(remarks, PhraseId::unknownVerb);
  add(remarks, PhraseId::onlyThisRow, {claim.ending});
}

void addStep(Remarks& remarks, const engine::TracedConjugation& conjugation,
             const engine::Making& making) {
  const bool isRuleOther =
      conjugation.source == engine::Source::rule && conjugation.trace.rule().model != kRegular;
  if (making.isOfNorm && !making.model.empty()) return addNorm(remarks, conjugation);
  if (isRuleOther && making.model == kRegular) add(remarks, PhraseId::asRegular);
  if (making.isListed) add(remarks, PhraseId::listed);
}

}  // namespace odmiennik::explainer
