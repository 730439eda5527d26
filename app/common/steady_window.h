// SPDX-License-Identifier: GPL-3.0-or-later
// Windows that outlive what stands over them.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QEvent>

#include "app/common/whole_window.h"

namespace odmiennik::app {

// Whether a modal window stands over `window`, which must then wait for it.
[[nodiscard]] inline bool isUnderModalWindow(const QWidget& window) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && modal != &window && !modal->isAncestorOf(&window);
}

// A window that is not closed, and so not deleted, while a message or another modal window stands
// over it: the mouse and the keys cannot reach it then, but a screen reader can press its buttons,
// and the program can be told to close it. Whoever opened the message finds its window as it was.
// On whatever screen it stands, it is large enough for what is in it.
//
//   class ListWindow final : public SteadyWindow<> { ... };
template <typename Dialog = QDialog>
class SteadyWindow : public Dialog {
 public:
  using Dialog::Dialog;

  // Every way to close a dialog leads here.
  void done(int result) override {
    if (!isUnderModalWindow(*this)) Dialog::done(result);
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ScreenChangeInternal) makeWholeLater(*this);
    return Dialog::event(event);
  }
};

}  // namespace odmiennik::app
