// SPDX-License-Identifier: GPL-3.0-or-later
// The tips of the main window's parts: under the pointer, and below the control that has the focus.
#pragma once

#include <QHelpEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include "app/hints/part_tips.h"

namespace odmiennik::app {

// A control that gets the focus from another one of the window shows its tip after the moment that
// the pointer has to wait too, unless the pointer is on it; a new text and another focus end it.
class Tooltips final : public QObject {
  Q_OBJECT

 public:
  explicit Tooltips(const MainWindow& window);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showAtPointer(const QHelpEvent& event) const;
  void focusChanged(const QWidget* before, QWidget* now);
  void showAtFocus();
  [[nodiscard]] bool mayShowAtFocus() const;

  PartTips tips_;
  QWidget& surface_;
  QTimer wait_;
  QPointer<QWidget> focused_;
};

}  // namespace odmiennik::app
