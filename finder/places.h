// SPDX-License-Identifier: GPL-3.0-or-later
// The places that a single word can take in a conjugation, as bits of one number.
#pragma once

#include <array>
#include <cstdint>

#include "engine/slots.h"

namespace odmiennik::finder {

// How a past participle agrees; every other form is as the masculine.
enum class Agreed : std::uint8_t { masculine, feminine, masculines, feminines };
inline constexpr int kAgreedCount = 4;

// A bit for each slot of a simple form, in slot order, the participle's the last; behind them a bit
// for each of its other agreements.
using Places = std::uint64_t;

inline constexpr auto kSimpleSlots = [] {
  namespace slot = engine::slot;
  struct Run {
    int first, count;
  };
  constexpr Run kRuns[] = {{slot::kPresent, 24},           {slot::kPresentSubjunctive, 12},
                           {slot::kPresentConditional, 6}, {slot::kImperative, 3},
                           {slot::kInfinitive, 1},         {slot::kPresentParticiple, 2}};
  std::array<std::int8_t, 48> numbers{};
  auto next = numbers.begin();
  for (const Run& run : kRuns)
    for (int i = 0; i < run.count; ++i) *next++ = static_cast<std::int8_t>(run.first + i);
  return numbers;
}();
static_assert(kSimpleSlots.back() == engine::slot::kPastParticiple);

inline constexpr int kParticiplePlace = static_cast<int>(kSimpleSlots.size()) - 1;
inline constexpr int kPlaceCount = kParticiplePlace + kAgreedCount;

// The slot and the agreement of a place.
[[nodiscard]] constexpr int slotOfPlace(int place) {
  return place > kParticiplePlace ? engine::slot::kPastParticiple
                                  : kSimpleSlots[static_cast<std::size_t>(place)];
}
[[nodiscard]] constexpr Agreed agreedOfPlace(int place) {
  return static_cast<Agreed>(place > kParticiplePlace ? place - kParticiplePlace : 0);
}
[[nodiscard]] constexpr int placeOfParticiple(Agreed agreed) {
  return kParticiplePlace + static_cast<int>(agreed);
}
[[nodiscard]] constexpr Places bitOf(int place) { return Places{1} << place; }

// Every slot that holds auxiliary and participle, as bits by slot number less the first one's.
[[nodiscard]] constexpr bool isCompound(int slot) {
  for (const std::int8_t simple : kSimpleSlots)
    if (simple == slot) return false;
  return true;
}
using CompoundSlots = std::uint64_t;
inline constexpr auto kCompoundNumbers = [] {
  std::array<std::int8_t, engine::kSlotCount> numbers{};
  int next = 0;
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    numbers[static_cast<std::size_t>(slot)] =
        static_cast<std::int8_t>(isCompound(slot) ? next++ : -1);
  return numbers;
}();
[[nodiscard]] constexpr CompoundSlots bitOfCompound(int slot) {
  return CompoundSlots{1} << kCompoundNumbers[static_cast<std::size_t>(slot)];
}

}  // namespace odmiennik::finder
