// The main window's layout follows its size.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

#include "app/layout/scaled_layout.h"

class QMainWindow;

namespace odmiennik::app {

// Listens to the window's resizes. Those of one drag are gathered and rescaled together once the
// event queue is empty, so that what rounding takes from the boxes does not add up; maximising and
// restoring rescale at once. The window's Width and Height are those of its surface: the client
// area without the menu bar. The first layout is the designed one.
class WindowScaling final : public QObject {
  Q_OBJECT

 public:
  // `mayContinue` puts the question of the resolution, and ends the program when it is refused.
  WindowScaling(QMainWindow& window, FormSurface& surface, const Controls& controls);

  // What is asked before a rescale on a screen that is too small; without it nothing is.
  void setQuestion(std::function<bool()> mayContinue) { mayContinue_ = std::move(mayContinue); }

  // Rescales to the window's size now; false when the user does not go on in this resolution.
  bool rescale();

  [[nodiscard]] const Layout& layout() { return scaled_.layout(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void surfaceResized();
  [[nodiscard]] TwipSize windowSize() const;

  QMainWindow& window_;
  FormSurface& surface_;
  ScaledLayout scaled_;
  std::function<bool()> mayContinue_ = [] { return true; };
  QTimer gathered_;
  Qt::WindowStates scaledState_;
  bool isRescaling_ = false;
};

}  // namespace odmiennik::app
