// SPDX-License-Identifier: GPL-3.0-or-later
// Which commands of the "&Edycja" menu are available.
#pragma once

#include <cstddef>

#include "engine/utf8.h"

namespace odmiennik::app {

// The control that has the focus at the moment of the question; lengths are letters.
struct ActiveControl {
  Utf8View name;
  bool isReadOnly = false;
  std::size_t selectionLength = 0;
  std::size_t textLength = 0;
  bool hasHistory = false;  // something has been typed that can be taken back
};

struct EditAvailability {
  bool canCut = false;
  bool canCopy = false;
  bool canPaste = false;
  bool canDelete = false;
  bool canSelectAll = false;
  bool canUndo = false;

  bool operator==(const EditAvailability&) const = default;
};

// Asked when the menu opens, and again when a shortcut is pressed. A control whose name does not
// begin with "txt" takes no edit command: a button allows nothing, an empty entry box at most
// pasting.
[[nodiscard]] EditAvailability editAvailability(const ActiveControl& control,
                                                bool isTextOnClipboard);

}  // namespace odmiennik::app
