// SPDX-License-Identifier: GPL-3.0-or-later
// The single words of a conjugation.
#include "finder/bare_forms.h"

#include <algorithm>

#include "engine/norm.h"
#include "engine/normalization.h"
#include "engine/pronouns.h"

namespace odmiennik::finder {
namespace {

namespace slot = engine::slot;

constexpr std::string_view kParted = ";/,";

// Calls `take` with each part of `text` between separators, without blanks around it.
template <typename Take>
void forEachPart(std::string_view text, std::string_view separators, Take take) {
  while (true) {
    const auto end = text.find_first_of(separators);
    take(engine::trimmed(text.substr(0, end)));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 1);
  }
}

bool isForm(std::string_view text) {
  return !text.empty() && text != engine::kPlaceholder &&
         text != engine::trimmed(engine::kShownMissing);
}

}  // namespace

void BareForms::read(const engine::Conjugation& conjugation) {
  forms_.clear();
  compound_ = 0;
  const engine::EngineFlags& flags = conjugation.flags;
  for (int place = 0; place < kParticiplePlace; ++place)
    readSlot(place, conjugation.forms[slotOfPlace(place)]);
  readParticiple(conjugation.forms[slot::kPastParticiple],
                 flags.variety == engine::Variety::system && flags.auxiliary == engine::kEtre);
  for (int number = 0; number < engine::kSlotCount; ++number)
    if (isCompound(number) && isForm(conjugation.forms[number])) compound_ |= bitOfCompound(number);
}

void BareForms::add(std::string_view text, int place) {
  if (!isForm(text)) return;
  const auto known = std::ranges::find(forms_, text, &BareForm::text);
  if (known != forms_.end()) {
    known->places |= bitOf(place);
    return;
  }
  forms_.push_back({std::string(text), bitOf(place)});
}

void BareForms::readSlot(int place, std::string_view text) {
  forEachPart(text, "/", [&](std::string_view part) {
    add(engine::withoutOwnReflexive(slotOfPlace(place), part), place);
  });
}

// A part behind the first is its feminine, or another masculine: "dû, due", "résolu/résous".
void BareForms::readParticiple(std::string_view text, bool isSystemAgreement) {
  std::string feminine;
  forEachPart(text, kParted, [&](std::string_view part) {
    part = engine::withoutMarker(part);
    if (!isForm(part) || part == feminine) return;
    addAgreed(part, isSystemAgreement);
    if (feminine.empty()) feminine = engine::participleForms(part).feminine;
  });
}

// deliberate: the system's own marker behind être is taken at its word as well, "mis(e)s" as
// "miss": what a box shows is found.
void BareForms::addAgreed(std::string_view masculine, bool isSystemAgreement) {
  const engine::ParticipleForms participle = engine::participleForms(masculine);
  add(participle.masculine, placeOfParticiple(Agreed::masculine));
  add(participle.feminine, placeOfParticiple(Agreed::feminine));
  add(participle.masculines, placeOfParticiple(Agreed::masculines));
  add(participle.feminines, placeOfParticiple(Agreed::feminines));
  if (!isSystemAgreement) return;
  const std::string bare(masculine);
  add(bare + "e", placeOfParticiple(Agreed::feminine));
  add(bare + "s", placeOfParticiple(Agreed::masculines));
  add(bare + "es", placeOfParticiple(Agreed::feminines));
}

}  // namespace odmiennik::finder
