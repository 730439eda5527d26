// SPDX-License-Identifier: GPL-3.0-or-later
// The 101 slots of a conjugation and the tenses they belong to: the central contract of the system.
#pragma once

#include "data/tenses.h"
#include "engine/utf8.h"

namespace odmiennik::engine {

// Of data/tenses.txt: kSlotCount; kTenses; `slot`, the first slot of every tense; `tense`, its
// position in kTenses: slot::kPastParticiple is 99, tense::kPastParticiple 20.

inline constexpr int kPersonCount = 6;
// Slots 0 to 89 belong to six-person tenses; the slots behind them carry no subject pronoun.
inline constexpr int kPersonalSlotCount = slot::kImperative;

static_assert(kSlotCount == 101, "files and numbered texts are laid out for 101 slots");
static_assert([] {
  for (const Tense& tense : kTenses)
    if ((tense.slotCount == kPersonCount) != (tense.firstSlot < kPersonalSlotCount)) return false;
  return true;
}());

// The tense that slot `index` (0 to 100) belongs to: tenseOf(26).name is "passé composé".
[[nodiscard]] constexpr const Tense& tenseOf(int index) {
  for (const Tense& tense : kTenses)
    if (index < tense.firstSlot + tense.slotCount) return tense;
  return kTenses.back();
}

// The tense at a position of kTenses: tenseAt(tense::kPastParticiple).name is "passé".
[[nodiscard]] constexpr const Tense& tenseAt(int position) {
  return kTenses[static_cast<std::size_t>(position)];
}

// The person of a slot ("je" … "ils"; the imperative has tu, nous, vous), empty where there is
// none.
[[nodiscard]] constexpr Utf8View personOf(int index) {
  constexpr Utf8View kPersons[] = {"je", "tu", "il", "nous", "vous", "ils"};
  constexpr Utf8View kImperativePersons[] = {"tu", "nous", "vous"};
  if (index < kPersonalSlotCount) return kPersons[index % kPersonCount];
  if (index < slot::kInfinitive) return kImperativePersons[index % 3];
  return {};
}

}  // namespace odmiennik::engine
