// SPDX-License-Identifier: GPL-3.0-or-later
// Where the focus is once the auxiliary's check box has been clicked.
#pragma once

#include <QCheckBox>
#include <QObject>

#include "app/main_window/form_boxes.h"
#include "app/typing/current_box.h"

namespace odmiennik::app {

// A click with the mouse is no reason to leave the boxes: the entry box has the focus, its text
// selected for the next verb; while a verb is edited, the box that the user was working in. Reached
// with the Tab key the check box keeps the focus.
class AuxiliaryFocus final : public QObject {
  Q_OBJECT

 public:
  AuxiliaryFocus(QCheckBox& box, const FormBoxes& boxes, const CurrentBox& current);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void giveBack() const;

  QCheckBox& box_;
  const FormBoxes& boxes_;
  const CurrentBox& current_;
  bool isPointedAt_ = false;  // the click comes from the mouse
};

}  // namespace odmiennik::app
