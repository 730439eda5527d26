// SPDX-License-Identifier: GPL-3.0-or-later
// The look of the main window on paper.
#pragma once

#include "app/logic/colour_dialog.h"

namespace odmiennik::app {

class MainWindow;

// For as long as it lives, what is drawn of `window` is drawn for paper: in the light colours on
// white ground, with plain frames, without selection, caret and focus. A colour that the user has
// chosen for a dark ground becomes dark enough to be read. Nothing of it is seen on the screen, as
// long as no events are processed meanwhile.
class PaperLook {
 public:
  explicit PaperLook(MainWindow& window);
  PaperLook(const PaperLook&) = delete;
  PaperLook& operator=(const PaperLook&) = delete;
  ~PaperLook();

 private:
  MainWindow& window_;
  ColourNumbers before_;
};

}  // namespace odmiennik::app
