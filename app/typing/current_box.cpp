// SPDX-License-Identifier: GPL-3.0-or-later
// The current box.
#include "app/typing/current_box.h"

#include <QEvent>

namespace odmiennik::app {

CurrentBox::CurrentBox(const FormBoxes& boxes) : boxes_(boxes) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot) boxes_[slot].installEventFilter(this);
}

bool CurrentBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    index_ = boxes_.slotOf(*watched);
    selectionStart_ = -1;
  }
  if (event->type() == QEvent::FocusOut && boxes_.slotOf(*watched) == index_) remember();
  return false;
}

void CurrentBox::remember() {
  text_ = box().text();
  selectionStart_ = box().selectionStart();
  selectionLength_ = static_cast<int>(box().selectedText().size());
}

void CurrentBox::restoreSelection() const {
  const bool isForgotten = box().hasFocus() || box().hasSelectedText() || box().text() != text_;
  if (selectionStart_ >= 0 && !isForgotten) box().setSelection(selectionStart_, selectionLength_);
}

void CurrentBox::insert(const QString& text) {
  if (isReadOnly()) return;
  restoreSelection();
  box().insert(text);
}

}  // namespace odmiennik::app
