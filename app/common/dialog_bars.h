// SPDX-License-Identifier: GPL-3.0-or-later
// The title bars of dialogs where a compositor leaves frames to the program.
#pragma once

#include <QObject>

class QWidget;

namespace odmiennik::app {

// Where Qt draws the frames itself it gives every window buttons that minimise and maximise,
// dialogs too. While this lives, a dialog that is shown among such windows gets a bar of its own
// instead: its caption, by which it is moved, and one button that closes it.
class DialogBars final : public QObject {
 public:
  // Watches all windows of the application; not to be made where somebody else draws the frames.
  explicit DialogBars(QObject* parent);

  bool eventFilter(QObject* watched, QEvent* event) override;
};

// Puts such a bar above what is in a dialog, which has a layout, and an edge around it.
void addDialogBar(QWidget& dialog);

}  // namespace odmiennik::app
