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

template <typename Stays>
void dropPersons(FormTable& forms, Stays stays) {
  for (int slot = 0; slot < kSlotCount; ++slot)
    if (!stays(slot)) forms[slot].clear();
}

std::string_view boxText(int slot, std::string_view form, bool isPronominal, bool isEditing) {
  if (form.empty()) return isEditing ? std::string_view{} : kShownMissing;
  const bool isBare = isPronominal || !mayCarryReflexive(slot, form);
  return isBare ? form : withoutOwnReflexive(slot, form);
}

}  // namespace

void display(FormTable& forms, const EngineFlags& flags, bool isEditing, Display& shown) {
  if (flags.isImpersonal) dropPersons(forms, staysImpersonal);
  if (flags.isOfThirdPersonOnly) dropPersons(forms, staysInThirdPerson);
  shown.isPronominal = flags.isPronominal;
  for (int slot = 0; slot < kSlotCount; ++slot)
    shown.boxes[static_cast<std::size_t>(slot)] =
        boxText(slot, forms[slot], flags.isPronominal, isEditing);
  chooseSubjectPronouns(forms, flags.hAspirate, shown.pronouns, flags.variety);
  chooseSubjunctiveCaptions(forms, shown.captions, flags.variety);
}

}  // namespace odmiennik::engine
