// SPDX-License-Identifier: GPL-3.0-or-later
// The shape of the table of message boxes that the build makes of data/messages.txt.
#pragma once

#include <cstdint>

#include "engine/utf8.h"

namespace odmiennik::dictionary {

enum class MessageId : std::uint8_t;

enum class Icon : std::uint8_t { none, information, question, exclamation, critical };

// A set of buttons; combined with |.
enum class Button : std::uint8_t { ok = 1, cancel = 2, yes = 4, no = 8, help = 16 };

[[nodiscard]] constexpr Button operator|(Button left, Button right) {
  return static_cast<Button>(static_cast<unsigned>(left) | static_cast<unsigned>(right));
}
[[nodiscard]] constexpr bool contains(Button set, Button button) {
  return (static_cast<unsigned>(set) & static_cast<unsigned>(button)) != 0;
}

// One message box. An empty title means the program's own; "{1}" in the text is to be filled in.
struct MessageRow {
  MessageId id;
  Icon icon;
  Button buttons;
  Button defaultButton;
  Utf8View title;
  Utf8View text;
};

}  // namespace odmiennik::dictionary
