// SPDX-License-Identifier: GPL-3.0-or-later
// When a key in a read-only box is answered with the hint that leads to the entry box.
#pragma once

#include <cstdint>
#include <vector>

#include "app/logic/entry_box.h"

namespace odmiennik::app {

// A key as it goes down or up in a box.
struct KeyStroke {
  std::uint32_t physicalKey = 0;  // the same number down and up, whatever Shift does in between
  int virtualKey = virtual_key::kNone;
  bool isControlHeld = false;
  bool isAltHeld = false;
  bool isShortcut = false;  // of a menu item or of the box itself
  bool isRepeated = false;  // by a key that is held down
};

// Whether the key is one that only changes others: Shift, Ctrl, Alt, the Windows keys, the locks.
[[nodiscard]] bool isModifier(int virtualKey);

// deliberate: every key that would type asks for the hint, each time, to lead to the entry box;
// those that move the caret or the selection do not. It has to go down and up in the same box, so
// that neither Tab nor the key that closed the hint is answered.
class ReadOnlyBoxHint {
 public:
  void pressed(int box, const KeyStroke& key);
  // Whether the hint is to be shown. Keys that were down together are answered once.
  [[nodiscard]] bool released(int box, const KeyStroke& key);
  // The focus leaves the boxes or moves between them.
  void focusLeft() { keysDown_.clear(); }

 private:
  int box_ = -1;
  std::vector<std::uint32_t> keysDown_;
};

enum class KeyReaction : std::uint8_t { none, complete, hint };

// What a key released in a box leads to. `isEntry`: the infinitive's box; `isHintKey`: what
// ReadOnlyBoxHint says of it.
[[nodiscard]] constexpr KeyReaction reactionToKey(bool isEntry, bool isReadOnly,
                                                  bool isCompletionOn, ReleasedKey key,
                                                  bool isHintKey) {
  if (isEntry && !isReadOnly && isCompletionOn)
    return completes(key) ? KeyReaction::complete : KeyReaction::none;
  return isReadOnly && isHintKey ? KeyReaction::hint : KeyReaction::none;
}

}  // namespace odmiennik::app
