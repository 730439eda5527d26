// SPDX-License-Identifier: GPL-3.0-or-later
// The two varieties of a verb, slot by slot.
#include "engine/departure.h"

namespace odmiennik::engine {
namespace {

constexpr std::size_t positionOf(int slot) { return static_cast<std::size_t>(slot); }

}  // namespace

void setPhrase(std::string& phrase, const Display& shown, int slot) {
  phrase.clear();
  if (shown.boxes[positionOf(slot)] == kShownMissing) return;
  if (slot < kPersonalSlotCount) {
    phrase.append(shown.pronouns[positionOf(slot)]);
    if (!phrase.ends_with('\'')) phrase.push_back(' ');
  }
  phrase.append(shown.boxes[positionOf(slot)]);
}

bool departs(const Display& system, const Display& norm, int slot) {
  return system.boxes[positionOf(slot)] != norm.boxes[positionOf(slot)] ||
         pronounDeparts(system, norm, slot);
}

bool pronounDeparts(const Display& system, const Display& norm, int slot) {
  if (slot >= kPersonalSlotCount || norm.boxes[positionOf(slot)] == kShownMissing) return false;
  return system.pronouns[positionOf(slot)] != norm.pronouns[positionOf(slot)];
}

}  // namespace odmiennik::engine
