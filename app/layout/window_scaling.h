// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's layout follows its size.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

#include "app/layout/scaled_layout.h"

class QMainWindow;

namespace odmiennik::app {

// Listens to the window's resizes. Those that wait in the event queue are rescaled together; all of
// one drag start from the layout that stood before it. Maximising and restoring rescale at once,
// inside the resize itself, unless the question of the resolution has to be put first: nothing
// modal opens while the window is being resized. The window's Width and Height are those of its
// surface: the client area without the menu bar. The first layout is the designed one. On another
// screen the window is fitted to that one.
class WindowScaling final : public QObject {
  Q_OBJECT

 public:
  // `mayContinue` is asked before a rescale on a screen that is too small; it puts the question of
  // the resolution, and ends the program when it is refused.
  WindowScaling(QMainWindow& window, FormSurface& surface, const Controls& controls,
                FormColumns& columns, std::function<bool()> mayContinue);

  // Rescales to the window's size now; false when the user does not go on in this resolution. May
  // put the question: called from the event loop, never from an event of the window.
  bool rescale();

  [[nodiscard]] const Layout& layout() const { return scaled_.layout(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void surfaceResized();
  void stateChanged();
  void screenChanged();
  void rescaleAtOnce();
  void endDrag();
  [[nodiscard]] TwipSize windowSize() const;

  QMainWindow& window_;
  FormSurface& surface_;
  ScaledLayout scaled_;
  std::function<bool()> mayContinue_;
  QTimer gathered_;
  QTimer dragEnd_{this};
  Qt::WindowStates scaledState_;
  bool isRescaling_ = false;
  bool isLate_ = false;    // the window was resized behind the question
  bool hasEnded_ = false;  // the question was answered with No
};

}  // namespace odmiennik::app
