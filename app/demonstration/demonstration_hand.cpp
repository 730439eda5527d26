// SPDX-License-Identifier: GPL-3.0-or-later
// Clicking and typing of a demonstration.
#include "app/demonstration/demonstration_hand.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QScopedValueRollback>
#include <utility>

namespace odmiennik::app {
namespace {

// The list that a drop-down list has opened, when `widget` is where its entries are painted.
QAbstractItemView* droppedList(QWidget& widget) {
  if (widget.window()->windowType() != Qt::Popup) return nullptr;
  return qobject_cast<QAbstractItemView*>(widget.parentWidget());
}

}  // namespace

void DemonstrationHand::hover(const DemonstrationTarget& target) {
  if (!target.widget) return;
  sendMouse(QEvent::MouseMove, target, Qt::NoButton, Qt::NoButton);
  if (auto* list = target.widget ? droppedList(*target.widget) : nullptr)
    list->setCurrentIndex(list->indexAt(target.point));
}

void DemonstrationHand::press(const DemonstrationTarget& target) {
  pressed_ = target;
  if (target.widget && droppedList(*target.widget) == nullptr)
    sendMouse(QEvent::MouseButtonPress, target, Qt::LeftButton, Qt::LeftButton);
}

// A drop-down list takes no click shortly after it has opened; its entry is lit already, and Enter
// chooses it at any time.
void DemonstrationHand::release() {
  const auto target = std::exchange(pressed_, std::nullopt);
  if (!target || !target->widget) return;
  if (auto* list = droppedList(*target->widget)) return strike(*list, Qt::Key_Return);
  sendMouse(QEvent::MouseButtonRelease, *target, Qt::LeftButton, Qt::NoButton);
}

// A button that goes up elsewhere clicks nothing.
void DemonstrationHand::letGo() {
  auto target = std::exchange(pressed_, std::nullopt);
  if (!target || !target->widget || droppedList(*target->widget) != nullptr) return;
  target->point = {-1, -1};
  sendMouse(QEvent::MouseButtonRelease, *target, Qt::LeftButton, Qt::NoButton);
}

void DemonstrationHand::strike(QWidget& widget, int key, const QString& text) {
  const QPointer<QWidget> receiver = &widget;
  QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
  send(widget, down);
  if (!receiver) return;
  QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
  send(*receiver, up);
}

void DemonstrationHand::send(QWidget& widget, QEvent& event) {
  const QScopedValueRollback<bool> busy(isBusy_, true);
  QCoreApplication::sendEvent(&widget, &event);
}

void DemonstrationHand::sendMouse(QEvent::Type type, const DemonstrationTarget& target,
                                  Qt::MouseButton button, Qt::MouseButtons held) {
  QWidget& widget = *target.widget;
  QMouseEvent event(type, target.point, widget.mapTo(widget.window(), target.point),
                    target.onScreen(), button, held, Qt::NoModifier);
  send(widget, event);
}

}  // namespace odmiennik::app
