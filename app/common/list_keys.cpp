// SPDX-License-Identifier: GPL-3.0-or-later
// Keys of a field for its list.
#include "app/common/list_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>

namespace odmiennik::app {
namespace {

bool movesInList(int key) {
  return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
         key == Qt::Key_PageDown;
}

}  // namespace

ListKeys::ListKeys(QLineEdit& field, QListWidget& list) : QObject(&field), list_(list) {
  field.installEventFilter(this);
}

bool ListKeys::eventFilter(QObject* /*field*/, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  if (!movesInList(static_cast<const QKeyEvent*>(event)->key())) return false;
  QCoreApplication::sendEvent(&list_, event);
  return true;
}

}  // namespace odmiennik::app
