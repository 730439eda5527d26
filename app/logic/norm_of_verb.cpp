// SPDX-License-Identifier: GPL-3.0-or-later
// Comparison of the shown verb with the norm.
#include "app/logic/norm_of_verb.h"

#include "engine/departure.h"

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
  for (std::string& caption : captions_) caption.clear();
}

void NormOfVerb::compareWith(const engine::Conjugation& shown, bool isAuxiliaryChosen) {
  forget();
  if (!isComparable(shown)) return;
  driver_.conjugate(norm_, shown.forms[engine::slot::kInfinitive]);
  const std::uint8_t chosen = shown.flags.auxiliary;
  if (isAuxiliaryChosen && norm_.flags.auxiliary != chosen)
    engine::Driver::toggleAuxiliary(norm_, chosen == engine::kAvoir, false);
  compareSlots(shown.shown);
  compareCaptions(shown.shown);
}

void NormOfVerb::compareSlots(const engine::Display& shown) {
  const engine::Display& norm = norm_.shown;
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const auto position = static_cast<std::size_t>(slot);
    if (!engine::departs(shown, norm, slot)) continue;
    if (engine::pronounDeparts(shown, norm, slot))
      engine::setPhrase(departures_[position], norm, slot);
    else
      departures_[position].assign(norm.boxes[position]);
  }
}

void NormOfVerb::compareCaptions(const engine::Display& shown) {
  for (std::size_t number = 0; number < captions_.size(); ++number)
    if (shown.captions[number] != norm_.shown.captions[number])
      captions_[number].assign(norm_.shown.captions[number]);
}

}  // namespace odmiennik::app
