// SPDX-License-Identifier: GPL-3.0-or-later
// The French letters that are typed by clicking.
#pragma once

#include <QCheckBox>
#include <QPushButton>

#include "app/controls/controls.h"
#include "app/typing/current_box.h"

namespace odmiennik::app {

// Each button types its caption into the current box; so do the check boxes that share the buttons'
// places and are not shown. A click with the mouse never takes the focus from the box. The key F6
// leads from any box to the letters, without passing the boxes between.
class LetterButtons {
 public:
  LetterButtons(const Controls& controls, CurrentBox& current);

 private:
  void connectKey(QPushButton& first);
  void connectButton(QPushButton& button);
  void connectCheckBox(QCheckBox& box);
  void checkBoxClicked(QCheckBox& box, bool isTicked);

  CurrentBox& current_;
};

}  // namespace odmiennik::app
