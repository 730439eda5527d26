// SPDX-License-Identifier: GPL-3.0-or-later
// What Enter does outside of the entry box, where it conjugates.
#pragma once

#include <QAction>
#include <QKeyEvent>
#include <QObject>

#include "app/controls/controls.h"
#include "app/main_window/form_boxes.h"

namespace odmiennik::app {

// In a box that can be typed into it leads to the next one in the order of the Tab key, from the
// last to the entry box; on the auxiliary's check box and on the button it conjugates. Held down it
// does all this once, and conjugates once in the entry box too. A locked box keeps its hint.
class EnterKey final : public QObject {
  Q_OBJECT

 public:
  // `conjugate` is the menu's command.
  EnterKey(const Controls& controls, const FormBoxes& boxes, QAction& conjugate);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool press(QObject& pressed);

  const FormBoxes& boxes_;
  QAction& conjugate_;
};

}  // namespace odmiennik::app
