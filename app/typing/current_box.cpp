// SPDX-License-Identifier: GPL-3.0-or-later
// The current box.
#include "app/typing/current_box.h"

#include <QFocusEvent>

namespace odmiennik::app {

CurrentBox::CurrentBox(const FormBoxes& boxes) : boxes_(boxes) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot) boxes_[slot].installEventFilter(this);
}

void CurrentBox::alsoServe(QLineEdit& field) {
  served_ = &field;
  field.installEventFilter(this);
}

// Whether it was an event of the field of another window.
bool CurrentBox::noteField(QObject* watched, QEvent* event) {
  if (watched == served_) {
    if (event->type() == QEvent::FocusIn) field_ = served_;
    if (event->type() == QEvent::Hide) field_ = nullptr;
    return true;
  }
  const bool isEntered = event->type() == QEvent::FocusIn &&
                         static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason;
  const bool isUsed =
      event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress;
  if (isEntered || isUsed) field_ = nullptr;
  return false;
}

void CurrentBox::focus() const {
  if (field_ == nullptr) return box().setFocus(Qt::OtherFocusReason);
  field_->activateWindow();
  field_->setFocus(Qt::OtherFocusReason);
}

bool CurrentBox::eventFilter(QObject* watched, QEvent* event) {
  if (noteField(watched, event)) return false;
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
  if (field_ != nullptr) return field_->insert(text);
  if (isReadOnly()) return;
  restoreSelection();
  box().insert(text);
}

}  // namespace odmiennik::app
