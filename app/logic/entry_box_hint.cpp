// SPDX-License-Identifier: GPL-3.0-or-later
// The hint of the read-only boxes.
#include "app/logic/entry_box_hint.h"

#include <algorithm>
#include <iterator>

namespace odmiennik::app {
namespace {

namespace vk = virtual_key;

constexpr int kModifiers[] = {vk::kShift,       vk::kControl, vk::kAlt,        vk::kCapsLock,
                              vk::kLeftWindows, vk::kNumLock, vk::kScrollLock, vk::kRightWindows};

// Caret and selection move in a locked box too, to read and copy a form.
bool movesCaret(int virtualKey) { return virtualKey >= vk::kPageUp && virtualKey <= vk::kDown; }

bool asksForHint(const KeyStroke& key) {
  const bool isCommand = key.isControlHeld || key.isAltHeld || key.isShortcut;
  const bool isTyped = key.virtualKey != vk::kTab && !movesCaret(key.virtualKey);
  return !isCommand && isTyped && !isModifier(key.virtualKey);
}

}  // namespace

bool isModifier(int virtualKey) {
  const bool isSided = virtualKey >= vk::kLeftShift && virtualKey <= vk::kRightAlt;
  return isSided || std::ranges::find(kModifiers, virtualKey) != std::end(kModifiers);
}

void ReadOnlyBoxHint::pressed(int box, const KeyStroke& key) {
  if (key.isRepeated) return;
  if (box != box_) focusLeft();
  box_ = box;
  if (asksForHint(key)) keysDown_.push_back(key.physicalKey);
}

bool ReadOnlyBoxHint::released(int box, const KeyStroke& key) {
  if (key.isRepeated || box != box_) return false;
  const bool isDown = std::ranges::find(keysDown_, key.physicalKey) != keysDown_.end();
  if (isDown) keysDown_.clear();
  return isDown;
}

}  // namespace odmiennik::app
