// SPDX-License-Identifier: GPL-3.0-or-later
// The story of a form.
#include "app/logic/form_story.h"

#include "engine/windows1252.h"

namespace odmiennik::app {
namespace {

using explainer::Explainer;
using explainer::Explanation;
using explainer::PhraseId;
using Lines = std::vector<Utf8Text>;

Lines single(PhraseId phrase) { return {Utf8Text(explainer::rowOf(phrase).text)}; }

Lines linesOf(const Explanation& explanation) {
  Lines lines;
  if (!explanation.phrase.empty()) lines.push_back(engine::toUtf8(explanation.phrase));
  for (Utf8Text& line : explainer::linesOf(explanation.remarks)) lines.push_back(std::move(line));
  if (const Utf8Text norm = explainer::normSentenceOf(explanation); !norm.empty())
    lines.push_back(norm);
  return lines;
}

bool take(Explainer& explainer, const engine::Conjugation& shown) {
  return explainer.take({.infinitive = shown.forms[engine::slot::kInfinitive],
                         .variety = shown.flags.variety,
                         .auxiliary = shown.flags.auxiliary});
}

Lines storyOfTyped(const Explainer& explainer, const AskedBox& asked, bool isVerb) {
  const std::string& form = explainer.conjugation().forms[asked.slot];
  if (isVerb && asked.text == form) return linesOf(explainer.explain(asked.slot));
  if (asked.text.empty()) return single(PhraseId::cleared);
  return single(asked.text == engine::kPlaceholder ? PhraseId::starTyped : PhraseId::typed);
}

}  // namespace

Lines storyOf(Explainer& explainer, const AskedBox& asked) {
  const bool isVerb = take(explainer, asked.shown);
  if (asked.isEditing) return storyOfTyped(explainer, asked, isVerb);
  if (!asked.shown.flags.isConjugationShown) return single(PhraseId::nothingShown);
  if (!isVerb) return single(PhraseId::unknownVerb);
  return linesOf(explainer.explain(asked.slot));
}

}  // namespace odmiennik::app
