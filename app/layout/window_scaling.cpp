// Resizes of the main window.
#include "app/layout/window_scaling.h"

#include <QEvent>
#include <QMainWindow>
#include <QScopedValueRollback>

#include "app/controls/form_surface.h"
#include "app/layout/screen_fit.h"

namespace odmiennik::app {
namespace {

// Maximised or as it was; whether the window is active does not matter.
Qt::WindowStates largeStates(const QWidget& window) {
  return window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen);
}

}  // namespace

WindowScaling::WindowScaling(QMainWindow& window, FormSurface& surface, const Controls& controls)
    : window_(window), surface_(surface), scaled_(controls, surface) {
  gathered_.setSingleShot(true);
  gathered_.setInterval(0);
  connect(&gathered_, &QTimer::timeout, this, &WindowScaling::rescale);
  surface.installEventFilter(this);
  window.installEventFilter(this);
}

bool WindowScaling::rescale() {
  if (isRescaling_) {  // the question is on the screen, and the window behind it changes its size
    gathered_.start();
    return true;
  }
  const QScopedValueRollback<bool> rescaling(isRescaling_, true);
  gathered_.stop();
  scaledState_ = largeStates(window_);
  const Rescaled outcome = resizeLayout(scaled_.layout(), windowSize(), window_.isMinimized(),
                                        screenWidth(window_), mayContinue_);
  if (outcome == Rescaled::rescaled) scaled_.apply();
  return outcome != Rescaled::ended;
}

void WindowScaling::surfaceResized() {
  if (largeStates(window_) != scaledState_)
    rescale();
  else
    gathered_.start();
}

bool WindowScaling::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &surface_ && event->type() == QEvent::Resize) surfaceResized();
  if (watched == &window_ && event->type() == QEvent::Show && !event->spontaneous())
    fitToScreen(window_);
  // Some systems tell of the new size before they tell of the state.
  if (watched == &window_ && event->type() == QEvent::WindowStateChange && gathered_.isActive())
    rescale();
  return false;
}

TwipSize WindowScaling::windowSize() const {
  return {surface_.width() * kTwipsPerPixel, surface_.height() * kTwipsPerPixel};
}

}  // namespace odmiennik::app
