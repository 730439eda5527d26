// SPDX-License-Identifier: GPL-3.0-or-later
// Comparison of the shown verb with the norm.
#include "app/logic/norm_of_verb.h"

namespace odmiennik::app {
namespace {

bool isComparable(const engine::Conjugation& shown) {
  const bool isConjugated =
      shown.source == engine::Source::rule || shown.source == engine::Source::builtin;
  return isConjugated && shown.flags.variety == engine::Variety::system;
}

}  // namespace

NormOfVerb::NormOfVerb(engine::VerbIndex& index, const engine::BuiltinVerbs& builtinVerbs,
                       const engine::RuleSets& rules)
    : driver_({index, noUserVerbs_, builtinVerbs, rules, silence_}) {
  norm_.variety = engine::Variety::norm;
}

void NormOfVerb::forget() {
  for (std::string& departure : departures_) departure.clear();
}

void NormOfVerb::compareWith(const engine::Conjugation& shown, bool isAuxiliaryChosen) {
  forget();
  if (!isComparable(shown)) return;
  driver_.conjugate(norm_, shown.forms[engine::slot::kInfinitive]);
  const std::uint8_t chosen = shown.flags.auxiliary;
  if (isAuxiliaryChosen && norm_.flags.auxiliary != chosen)
    engine::Driver::toggleAuxiliary(norm_, chosen == engine::kAvoir, false);
  compareSlots(shown.shown);
}

void NormOfVerb::compareSlots(const engine::Display& shown) {
  for (std::size_t slot = 0; slot < departures_.size(); ++slot) {
    const std::string_view norm = norm_.shown.boxes[slot];
    const bool hasPronoun = slot < shown.pronouns.size() && norm != engine::kShownMissing;
    const bool hasOtherPronoun = hasPronoun && norm_.shown.pronouns[slot] != shown.pronouns[slot];
    if (norm == shown.boxes[slot] && !hasOtherPronoun) continue;
    std::string& departure = departures_[slot];
    if (hasOtherPronoun) departure.assign(norm_.shown.pronouns[slot]);
    if (hasOtherPronoun && !departure.ends_with('\'')) departure.push_back(' ');
    departure.append(norm);
  }
}

}  // namespace odmiennik::app
