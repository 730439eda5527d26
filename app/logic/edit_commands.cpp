// SPDX-License-Identifier: GPL-3.0-or-later
// Availability of the edit commands.
#include "app/logic/edit_commands.h"

namespace odmiennik::app {

EditAvailability editAvailability(const ActiveControl& control, bool isTextOnClipboard) {
  if (!control.name.starts_with("txt")) return {};
  const bool isSelected = control.selectionLength > 0;
  const bool isRemovable = isSelected && !control.isReadOnly;
  return {.canCut = isRemovable,
          .canCopy = isSelected,
          .canPaste = isTextOnClipboard && !control.isReadOnly,
          .canDelete = isRemovable,
          .canSelectAll = control.selectionLength < control.textLength,
          .canUndo = control.hasHistory && !control.isReadOnly};
}

}  // namespace odmiennik::app
