// SPDX-License-Identifier: GPL-3.0-or-later
// Windows virtual-key codes of Qt's keys, by which the boxes tell keys apart on every system.
#pragma once

#include <cstdint>

#include "app/logic/entry_box_hint.h"

class QKeyEvent;

namespace odmiennik::app {

// The code of a key named by Qt; virtual_key::kNone for a letter that belongs to no key of its own
// ("é", a dead key), since only its place on the keyboard would tell: 'A' -> 65, F1 -> 112.
[[nodiscard]] int virtualKeyOf(int qtKey, bool isOnKeypad);

// The code of the key that was pressed or released. The place of a key, where the system tells it,
// counts before the letter: the digit row stays the digit row also where it types é and à.
[[nodiscard]] int virtualKeyOf(const QKeyEvent& event);

// The event as the hint of the read-only boxes takes it; whether it is a shortcut is left open.
[[nodiscard]] KeyStroke strokeOf(const QKeyEvent& event);

}  // namespace odmiennik::app
