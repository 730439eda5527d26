// SPDX-License-Identifier: GPL-3.0-or-later
// The hand of a demonstration: it clicks and types in the user's stead.
#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include "app/demonstration/demonstration_places.h"

namespace odmiennik::app {

// Sends its events to the widgets themselves, so that they arrive wherever the pointer and the
// focus are, and can be told from the user's.
class DemonstrationHand {
 public:
  // Whether an event that is under way comes from here.
  [[nodiscard]] bool isBusy() const { return isBusy_; }

  // The pointer has come to a place: what is under it lights up.
  void hover(const DemonstrationTarget& target);

  // The left mouse button, down at a place, then up at the same.
  void press(const DemonstrationTarget& target);
  void release();

  // Gives up a click that has begun: nothing is clicked.
  void letGo();

  // One key, down and up: strike(box, Qt::Key_unknown, "é").
  void strike(QWidget& widget, int key, const QString& text = {});

 private:
  void send(QWidget& widget, QEvent& event);
  void sendMouse(QEvent::Type type, const DemonstrationTarget& target, Qt::MouseButton button,
                 Qt::MouseButtons held);

  std::optional<DemonstrationTarget> pressed_;
  bool isBusy_ = false;
};

}  // namespace odmiennik::app
