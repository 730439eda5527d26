// SPDX-License-Identifier: GPL-3.0-or-later
// The display step.
#include "engine/display.h"

namespace odmiennik::engine {
namespace {

// deliberate: the bound is 89, so that all il forms stay and slot 100 goes with the imperatives.
constexpr bool staysImpersonal(int slot) {
  const bool isIlForm = slot % kPersonCount == 2 && slot < 89;
  return isIlForm || (slot >= slot::kInfinitive && slot <= slot::kPastParticiple);
}

// il and ils, the infinitives and the participles.
constexpr bool staysInThirdPerson(int slot) {
  return slot < kPersonalSlotCount ? slot % 3 == 2 : slot >= slot::kInfinitive;
}

template <typename Forms, typename Stays>
void dropPersons(Forms& forms, Stays stays, Lack lack) {
  for (int slot = 0; slot < kSlotCount; ++slot)
    if (!stays(slot)) lose(forms, slot, lack);
}

}  // namespace

template <typename Forms>
void display(Forms& forms, const EngineFlags& flags, bool isEditing, Display& shown) {
  if (flags.isImpersonal) dropPersons(forms, staysImpersonal, Lack::impersonal);
  if (flags.isOfThirdPersonOnly) dropPersons(forms, staysInThirdPerson, Lack::thirdPersonOnly);
  shown.isPronominal = flags.isPronominal;
  const bool isPronominal = flags.isPronominal;
  const std::string_view none = isEditing ? std::string_view{} : kShownMissing;
  for (int slot = 0; slot < kSlotCount; ++slot) {
    const std::string_view form = forms[slot].empty() ? none : forms[slot];
    const std::string_view box = isPronominal ? form : withoutOwnReflexive(slot, form);
    shown.boxes[static_cast<std::size_t>(slot)] = box;
    noteShown(forms, slot, box);
  }
  chooseSubjectPronouns(tableOf(forms), flags.hAspirate, shown.pronouns, flags.variety);
  chooseSubjunctiveCaptions(tableOf(forms), shown.captions, flags.variety);
}

template void display(FormTable&, const EngineFlags&, bool, Display&);
template void display(TracedForms&, const EngineFlags&, bool, Display&);

}  // namespace odmiennik::engine
