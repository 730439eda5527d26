// SPDX-License-Identifier: GPL-3.0-or-later
// Completion of a stored verb.
#include "engine/completion.h"

#include "engine/compound_tenses.h"
#include "engine/simple_tenses.h"

namespace odmiennik::engine {
namespace {

bool isBase(const std::string& form) { return !form.empty() && form != kPlaceholder; }

void completeImperfect(FormTable& forms) {
  if (isBase(forms[3])) buildImperfect(forms, less(forms[3], 3));
}

void completeFuture(FormTable& forms) {
  const std::string_view infinitive = forms[slot::kInfinitive];
  buildFuture(forms, infinitive.ends_with("e") ? less(infinitive, 1) : infinitive);
}

void completeCompoundTenses(FormTable& forms, std::uint8_t auxiliary, Agreement agreement) {
  if (isBase(forms[slot::kPastParticiple]) && hasCompoundPlaceholder(forms))
    buildCompoundTenses(forms, auxiliary, {.placeholdersOnly = true, .agreement = agreement});
}

void completePresentSubjunctive(FormTable& forms) {
  if (isBase(forms[5])) buildPresentSubjunctive(forms);
}

void completeConditional(FormTable& forms) {
  if (isBase(forms[slot::kFuture])) buildConditional(forms);
}

void completeImperfectSubjunctive(FormTable& forms) {
  if (isBase(forms[slot::kPastHistoric])) buildImperfectSubjunctive(forms);
}

void completePresentParticiple(FormTable& forms) {
  if (isBase(forms[3])) buildPresentParticiple(forms);
}

}  // namespace

void completeStoredVerb(FormTable& forms, std::uint8_t auxiliary, Agreement agreement) {
  if (forms.isPlaceholder(slot::kImperfect)) completeImperfect(forms);
  if (forms.isPlaceholder(slot::kFuture)) completeFuture(forms);
  if (forms.isPlaceholder(slot::kImperative)) buildImperative(forms);
  completeCompoundTenses(forms, auxiliary, agreement);
  if (forms.isPlaceholder(slot::kPresentSubjunctive)) completePresentSubjunctive(forms);
  if (forms.isPlaceholder(slot::kPastHistoric)) buildPastHistoric(forms);
  if (forms.isPlaceholder(slot::kPresentConditional)) completeConditional(forms);
  if (forms.isPlaceholder(slot::kImperfectSubjunctive)) completeImperfectSubjunctive(forms);
  if (forms.isPlaceholder(slot::kPresentParticiple)) completePresentParticiple(forms);
}

}  // namespace odmiennik::engine
