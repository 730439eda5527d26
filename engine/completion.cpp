// SPDX-License-Identifier: GPL-3.0-or-later
// Completion of a stored verb.
#include "engine/completion.h"

#include "engine/compound_tenses.h"
#include "engine/simple_tenses.h"

namespace odmiennik::engine {
namespace {

bool isBase(const std::string& form) { return !form.empty() && form != kPlaceholder; }

template <typename Forms>
void completeImperfect(Forms& forms) {
  if (!isBase(forms[3])) return;
  noteOrigin(forms, 3, 3);
  buildImperfect(forms, less(forms[3], 3));
}

template <typename Forms>
void completeFuture(Forms& forms) {
  const std::string_view infinitive = forms[slot::kInfinitive];
  const std::size_t cut = infinitive.ends_with("e") ? 1 : 0;
  noteOrigin(forms, slot::kInfinitive, cut);
  buildFuture(forms, less(infinitive, cut));
}

template <typename Forms>
void completeCompoundTenses(Forms& forms, std::uint8_t auxiliary, Agreement agreement) {
  if (isBase(forms[slot::kPastParticiple]) && hasCompoundPlaceholder(tableOf(forms)))
    buildCompoundTenses(forms, auxiliary, {.placeholdersOnly = true, .agreement = agreement});
}

template <typename Forms>
void completePresentSubjunctive(Forms& forms) {
  if (isBase(forms[5])) buildPresentSubjunctive(forms);
}

template <typename Forms>
void completeConditional(Forms& forms) {
  if (isBase(forms[slot::kFuture])) buildConditional(forms);
}

template <typename Forms>
void completeImperfectSubjunctive(Forms& forms) {
  if (isBase(forms[slot::kPastHistoric])) buildImperfectSubjunctive(forms);
}

template <typename Forms>
void completePresentParticiple(Forms& forms) {
  if (isBase(forms[3])) buildPresentParticiple(forms);
}

}  // namespace

template <typename Forms>
void completeStoredVerb(Forms& forms, std::uint8_t auxiliary, Agreement agreement) {
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

template void completeStoredVerb(FormTable&, std::uint8_t, Agreement);
template void completeStoredVerb(TracedForms&, std::uint8_t, Agreement);

}  // namespace odmiennik::engine
