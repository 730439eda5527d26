// SPDX-License-Identifier: GPL-3.0-or-later
// The mouse pointer of the main window: the program's arrow, or the hourglass while it is busy.
#pragma once

#include <QCursor>
#include <QWidget>

#include "app/main_window/cursors.h"

namespace odmiennik::app {

// The one place that changes the window's pointer; boxes and headings have their own.
class WindowPointer {
 public:
  explicit WindowPointer(QWidget& window) : window_(window) {}

  void showHourglass() { window_.setCursor(hourglassCursor()); }
  void showDefault() { window_.setCursor(default_); }

  // What `showDefault` shows from now on; the system's arrow until then.
  void setDefault(const QCursor& cursor) { default_ = cursor; }

 private:
  QWidget& window_;
  QCursor default_;
};

}  // namespace odmiennik::app
