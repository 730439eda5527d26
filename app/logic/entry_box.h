// SPDX-License-Identifier: GPL-3.0-or-later
// Completion of the infinitive while it is typed.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace odmiennik::app {

// Windows virtual-key codes of keys that the boxes tell apart.
namespace virtual_key {
inline constexpr int kNone = 0;  // arrived without a key: a dead key's letter, an input method's
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kShift = 16;
inline constexpr int kControl = 17;
inline constexpr int kAlt = 18;
inline constexpr int kCapsLock = 20;
inline constexpr int kSpace = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kDown = 40;  // the last of Page Up, Page Down, End, Home and the arrows
inline constexpr int kDelete = 46;
inline constexpr int kFirstLetter = 65;  // "A"
inline constexpr int kLeftWindows = 91;
inline constexpr int kRightWindows = 92;
inline constexpr int kF1 = 112;
inline constexpr int kNumLock = 144;
inline constexpr int kScrollLock = 145;
inline constexpr int kLeftShift = 160;
inline constexpr int kRightAlt = 165;
inline constexpr int kLastNamed = 254;
}  // namespace virtual_key

// A key released in the entry box, once it has had its effect on the text.
struct ReleasedKey {
  int virtualKey = virtual_key::kNone;
  bool isLetterTyped = false;  // asked only of what came without a key
  bool isRefused = false;      // its letter is one that the box does not take
};

// Whether the key may complete: codes 65 to 254. Backspace, Delete, arrows, Space, Enter and the
// digit row do not, whatever letter the digit row types, nor does a letter that has not been
// entered: the text in front of it would become another verb without a word.
[[nodiscard]] constexpr bool completes(ReleasedKey key) {
  if (key.isRefused) return false;
  if (key.virtualKey == virtual_key::kNone) return key.isLetterTyped;
  return key.virtualKey >= virtual_key::kFirstLetter && key.virtualKey <= virtual_key::kLastNamed;
}

// The entry box when the key is released; texts are Windows-1252, places are letters.
struct EntryBox {
  std::string_view text;
  std::size_t caret = 0;
  std::size_t selectionLength = 0;
  bool isReadOnly = false;
};

// What the entry box is to hold: the part that nobody typed is selected, so that typing replaces
// it.
struct CompletedEntry {
  std::string text;
  std::size_t caret = 0;
  std::size_t selectionStart = 0;
  std::size_t selectionLength = 0;
};

// A verb that begins with a prefix, or the empty text: dictionary::completion.
using Completion = std::string_view (*)(std::string_view prefix);

// The completed entry, or nothing when text and caret stay: with the caret elsewhere than at the
// end, with a text that no verb begins with, and with one that is complete. "all" with the caret
// at 3 -> "aller", 3 letters typed, 2 selected.
[[nodiscard]] std::optional<CompletedEntry> completedEntry(const EntryBox& box,
                                                           Completion completion);

// The autocompletion switch: the menu item's check mark and the setting that mirrors it.
class CompletionSwitch {
 public:
  explicit CompletionSwitch(bool isOn) : isOn_(isOn) {}
  [[nodiscard]] bool isOn() const { return isOn_; }
  // As kept in the store: 1 or 0.
  [[nodiscard]] int stored() const { return isOn_ ? 1 : 0; }
  void invert() { isOn_ = !isOn_; }

 private:
  bool isOn_;
};

}  // namespace odmiennik::app
