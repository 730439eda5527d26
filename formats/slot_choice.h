// SPDX-License-Identifier: GPL-3.0-or-later
// Which forms of a conjugation are printed.
#pragma once

#include <bitset>

#include "engine/slots.h"

namespace odmiennik::formats {

// Some of the 101 slots; at first all of them.
class SlotChoice {
 public:
  void leaveOut(int slot) { leftOut_.set(static_cast<std::size_t>(slot)); }

  [[nodiscard]] bool has(int slot) const { return !leftOut_[static_cast<std::size_t>(slot)]; }
  [[nodiscard]] bool hasAll() const { return leftOut_.none(); }
  [[nodiscard]] bool isEmpty() const { return leftOut_.all(); }

  // Whether there is a slot of the tense (a position in engine::kTenses).
  [[nodiscard]] bool hasTense(int tense) const {
    const engine::Tense& row = engine::tenseAt(tense);
    for (int slot = row.firstSlot; slot < row.firstSlot + row.slotCount; ++slot)
      if (has(slot)) return true;
    return false;
  }

 private:
  std::bitset<engine::kSlotCount> leftOut_;
};

}  // namespace odmiennik::formats
