// SPDX-License-Identifier: GPL-3.0-or-later
// Enter outside of the entry box.
#include "app/typing/enter_key.h"

#include <QCheckBox>
#include <QPushButton>

namespace odmiennik::app {
namespace {

bool isEnter(const QKeyEvent& key) {
  const bool isPlain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return isPlain && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
}

QWidget& boxAfter(QWidget& box) {
  QWidget* next = box.nextInFocusChain();
  while (qobject_cast<FormBox*>(next) == nullptr) next = next->nextInFocusChain();
  return *next;
}

}  // namespace

EnterKey::EnterKey(const Controls& controls, const FormBoxes& boxes, QAction& conjugate)
    : boxes_(boxes), conjugate_(conjugate) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot) boxes[slot].installEventFilter(this);
  controls.get<QCheckBox>(positionOf("chkZAvoir")).installEventFilter(this);
  controls.get<QPushButton>(positionOf("cmdOdmień")).installEventFilter(this);
}

bool EnterKey::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  return isEnter(key) && (key.isAutoRepeat() || press(*watched));
}

bool EnterKey::press(QObject& pressed) {
  auto* box = qobject_cast<FormBox*>(&pressed);
  if (box == nullptr) {
    conjugate_.trigger();
    return true;
  }
  if (box == &boxes_.entry() || box->isReadOnly()) return false;
  boxAfter(*box).setFocus(Qt::TabFocusReason);
  return true;
}

}  // namespace odmiennik::app
