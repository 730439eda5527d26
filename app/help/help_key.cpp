// SPDX-License-Identifier: GPL-3.0-or-later
// F1. The key of the menu item does not reach into modal windows; this one does.
#include "app/help/help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace odmiennik::app {

HelpKey::HelpKey(std::function<void()> open) : open_(std::move(open)) {
  qApp->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
  if (QApplication::activePopupWidget() != nullptr) return false;
  open_();
  return true;
}

}  // namespace odmiennik::app
