// SPDX-License-Identifier: GPL-3.0-or-later
// The table of a verb.
#include "explainer/verb_table.h"

#include <algorithm>

#include "dictionary/verb_labels.h"

namespace odmiennik::explainer {
namespace {

using Ways = std::vector<std::vector<PhraseId>>;

// In which way a form is made: its remarks without what is in them. How a pronoun is elided makes
// no other way, nor does an ending that the builder leaves away.
std::vector<PhraseId> wayOf(const Explanation& explanation) {
  std::vector<PhraseId> way;
  for (const Remark& remark : explanation.remarks)
    if (rowOf(remark.phrase).part != PhrasePart::pronoun)
      way.push_back(remark.phrase == PhraseId::noEnding ? PhraseId::ending : remark.phrase);
  for (const Remark& remark : explanation.normRemarks) way.push_back(remark.phrase);
  return way;
}

void addTense(const Explainer& explainer, const engine::Tense& tense,
              std::vector<Explanation>& forms) {
  Ways ways;
  std::vector<Explanation> lacking;
  for (int slot = tense.firstSlot; slot < tense.firstSlot + tense.slotCount; ++slot) {
    Explanation form = explainer.explainComposition(slot);
    if (form.phrase.empty() && !form.isDeparting) {
      lacking.push_back(std::move(form));
      continue;
    }
    const std::vector<PhraseId> way = wayOf(form);
    if (std::ranges::find(ways, way) != ways.end()) continue;
    ways.push_back(way);
    forms.push_back(std::move(form));
  }
  if (ways.empty()) forms.push_back(std::move(lacking.front()));
}

Utf8Text auxiliaryOf(const engine::Conjugation& conjugation) {
  const std::uint8_t used = conjugation.flags.auxiliary;
  const std::uint8_t other = used == engine::kAvoir ? engine::kEtre : engine::kAvoir;
  const bool isEither = conjugation.information.auxiliary == engine::KnownAuxiliary::either;
  if (!isEither) return Utf8Text(dictionary::auxiliaryName(used));
  Remarks remarks;
  addNamed(remarks, PhraseId::headEither,
           {dictionary::auxiliaryName(used), dictionary::auxiliaryName(other)});
  return remarks.front().text;
}

}  // namespace

VerbTable tableOf(const Explainer& explainer) {
  VerbTable table{.source = sentenceOf(explainer.source()),
                  .auxiliary = auxiliaryOf(explainer.conjugation())};
  for (const engine::Tense& tense : engine::kTenses)
    if (tense.firstSlot != engine::slot::kInfinitive) addTense(explainer, tense, table.forms);
  return table;
}

}  // namespace odmiennik::explainer
