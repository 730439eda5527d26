// SPDX-License-Identifier: GPL-3.0-or-later
// The window frmSkąd: how a form came to be.
#pragma once

#include <QPlainTextEdit>
#include <QPushButton>

#include "app/common/steady_window.h"

namespace odmiennik::app {

// A small window near the box that was asked about. It is not modal; Escape closes it.
class ExplainWindow final : public SteadyWindow<> {
  Q_OBJECT

 public:
  explicit ExplainWindow(QWidget* mainWindow);

  // Shows the story of the form in `box`, below it or above, wherever the screen has room. `place`
  // is what the box is called; a screen reader says all of it.
  void tell(const QString& place, const QString& story, const QWidget& box);

 private:
  void layOut();
  void placeNear(const QWidget& box);

  QPlainTextEdit& story_;
  QPushButton& close_;
};

}  // namespace odmiennik::app
