// SPDX-License-Identifier: GPL-3.0-or-later
// Virtual-key codes: the table, and the key of an event.
#include "app/typing/key_codes.h"

#include <QKeyEvent>

#include "app/platform/platform.h"

namespace odmiennik::app {
namespace {

namespace vk = virtual_key;

constexpr int kFirstDigit = 48;
constexpr int kLastDigit = 57;
constexpr int kKeypadZero = 96;
constexpr int kOtherPunctuation = 223;  // a key that layouts other than the American one have

struct KeyCode {
  int qtKey;
  int code;
};

constexpr KeyCode kKeys[] = {
    {Qt::Key_Backspace, vk::kBackspace},
    {Qt::Key_Tab, vk::kTab},
    {Qt::Key_Backtab, vk::kTab},
    {Qt::Key_Clear, 12},
    {Qt::Key_Return, vk::kEnter},
    {Qt::Key_Enter, vk::kEnter},
    {Qt::Key_Shift, vk::kShift},
    {Qt::Key_Control, vk::kControl},
    {Qt::Key_Alt, vk::kAlt},
    {Qt::Key_AltGr, vk::kAlt},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, vk::kCapsLock},
    {Qt::Key_Escape, 27},
    {Qt::Key_Space, vk::kSpace},
    {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},
    {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},
    {Qt::Key_Print, 44},
    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, vk::kDelete},
    {Qt::Key_Help, 47},
    {Qt::Key_Meta, vk::kLeftWindows},
    {Qt::Key_Super_L, vk::kLeftWindows},
    {Qt::Key_Super_R, vk::kRightWindows},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, vk::kNumLock},
    {Qt::Key_ScrollLock, vk::kScrollLock},
    // The digit row with Shift, as the American layout has it.
    {Qt::Key_ParenRight, 48},
    {Qt::Key_Exclam, 49},
    {Qt::Key_At, 50},
    {Qt::Key_NumberSign, 51},
    {Qt::Key_Dollar, 52},
    {Qt::Key_Percent, 53},
    {Qt::Key_AsciiCircum, 54},
    {Qt::Key_Ampersand, 55},
    {Qt::Key_Asterisk, 56},
    {Qt::Key_ParenLeft, 57},
    {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},
    {Qt::Key_Equal, 187},
    {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},
    {Qt::Key_Less, 188},
    {Qt::Key_Minus, 189},
    {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},
    {Qt::Key_Greater, 190},
    {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192},
    {Qt::Key_AsciiTilde, 192},
    {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},
    {Qt::Key_Backslash, 220},
    {Qt::Key_Bar, 220},
    {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221},
    {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},
};

constexpr KeyCode kKeypad[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},   {Qt::Key_Comma, 110},
    {Qt::Key_Minus, 109},    {Qt::Key_Period, 110}, {Qt::Key_Slash, 111},
};

template <std::size_t Count>
constexpr int codeIn(const KeyCode (&keys)[Count], int qtKey) {
  for (const KeyCode& key : keys)
    if (key.qtKey == qtKey) return key.code;
  return vk::kNone;
}

constexpr bool isBetween(int key, int first, int last) { return key >= first && key <= last; }

constexpr bool isOfDigitRow(int code) { return isBetween(code, kFirstDigit, kLastDigit); }

int keypadCode(int qtKey) {
  if (isBetween(qtKey, Qt::Key_0, Qt::Key_9)) return kKeypadZero + (qtKey - Qt::Key_0);
  return codeIn(kKeypad, qtKey);
}

}  // namespace

int virtualKeyOf(int qtKey, bool isOnKeypad) {
  const int onKeypad = isOnKeypad ? keypadCode(qtKey) : vk::kNone;
  if (onKeypad != vk::kNone) return onKeypad;
  if (isBetween(qtKey, Qt::Key_0, Qt::Key_9) || isBetween(qtKey, Qt::Key_A, Qt::Key_Z))
    return qtKey;
  if (isBetween(qtKey, Qt::Key_F1, Qt::Key_F24)) return vk::kF1 + (qtKey - Qt::Key_F1);
  return codeIn(kKeys, qtKey);
}

int virtualKeyOf(const QKeyEvent& event) {
  const int placed = platform::virtualKey(event.nativeScanCode(), event.nativeVirtualKey());
  if (placed != vk::kNone) return placed;
  const int named = virtualKeyOf(event.key(), event.modifiers().testFlag(Qt::KeypadModifier));
  const bool isPlaceKnown = event.nativeScanCode() != 0;
  return isPlaceKnown && isOfDigitRow(named) ? kOtherPunctuation : named;
}

KeyStroke strokeOf(const QKeyEvent& event) {
  KeyStroke key;
  key.physicalKey = event.nativeScanCode() != 0 ? event.nativeScanCode()
                                                : static_cast<std::uint32_t>(event.key());
  key.virtualKey = virtualKeyOf(event);
  key.isControlHeld = event.modifiers().testFlag(Qt::ControlModifier);
  key.isAltHeld = event.modifiers().testFlag(Qt::AltModifier);
  key.isRepeated = event.isAutoRepeat();
  return key;
}

}  // namespace odmiennik::app
