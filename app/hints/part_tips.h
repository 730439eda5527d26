// SPDX-License-Identifier: GPL-3.0-or-later
// What each part of the main window says of itself.
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

#include "app/controls/control_row.h"
#include "engine/utf8.h"

namespace odmiennik::app {

class MainWindow;

// Texts are made when they are asked for: nothing is kept, so nothing can be out of date.
class PartTips {
 public:
  explicit PartTips(const MainWindow& window) : window_(window) {}

  // The text of a control; empty for one that explains itself.
  [[nodiscard]] QString tipOf(const QWidget& control) const;

  // The text of the pronoun at a place of the window's ground; empty where there is none.
  [[nodiscard]] QString tipAt(const QPoint& place) const;

 private:
  [[nodiscard]] Utf8Text textOf(const ControlRow& row, const QWidget& control) const;
  [[nodiscard]] Utf8Text formTipOf(int slot) const;

  const MainWindow& window_;
};

}  // namespace odmiennik::app
