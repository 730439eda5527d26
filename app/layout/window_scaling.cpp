// SPDX-License-Identifier: GPL-3.0-or-later
// Resizes of the main window.
#include "app/layout/window_scaling.h"

#include <QEvent>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <chrono>
#include <utility>

#include "app/common/whole_window.h"
#include "app/controls/form_surface.h"
#include "app/layout/screen_fit.h"

namespace odmiennik::app {
namespace {

// A drag has ended when no size has come for so long.
constexpr std::chrono::milliseconds kDragPause(300);

// Maximised or as it was; whether the window is active does not matter.
Qt::WindowStates largeStates(const QWidget& window) {
  return window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen);
}

}  // namespace

WindowScaling::WindowScaling(QMainWindow& window, FormSurface& surface, const Controls& controls,
                             FormColumns& columns, std::function<bool()> mayContinue)
    : window_(window),
      surface_(surface),
      scaled_(controls, surface, columns),
      mayContinue_(std::move(mayContinue)) {
  gathered_.setSingleShot(true);
  gathered_.setInterval(0);
  connect(&gathered_, &QTimer::timeout, this, &WindowScaling::rescale);
  dragEnd_.setObjectName(QStringLiteral("dragEnd"));
  dragEnd_.setSingleShot(true);
  dragEnd_.setInterval(kDragPause);
  connect(&dragEnd_, &QTimer::timeout, this, &WindowScaling::endDrag);
  surface.installEventFilter(this);
  window.installEventFilter(this);
}

bool WindowScaling::rescale() {
  if (hasEnded_) return false;
  if (isRescaling_) return isLate_ = true;
  const QScopedValueRollback<bool> rescaling(isRescaling_, true);
  gathered_.stop();
  scaledState_ = largeStates(window_);
  const Rescaled outcome = scaled_.dragged().resize(windowSize(), window_.isMinimized(),
                                                    screenWidth(window_), mayContinue_);
  if (outcome == Rescaled::rescaled) scaled_.apply();
  hasEnded_ = outcome == Rescaled::ended;
  if (std::exchange(isLate_, false)) gathered_.start();
  return !hasEnded_;
}

// Inside an event of the window, where nothing may be asked.
void WindowScaling::rescaleAtOnce() {
  if (screenWidth(window_).isTooSmall())
    gathered_.start();
  else
    rescale();
}

void WindowScaling::surfaceResized() {
  if (largeStates(window_) != scaledState_) {
    endDrag();
    return rescaleAtOnce();
  }
  scaled_.dragged().begin();
  dragEnd_.start();
  gathered_.start();
}

// Some systems tell of the new size before they tell of the state: what was taken for a drag is
// none.
void WindowScaling::stateChanged() {
  if (gathered_.isActive()) rescaleAtOnce();
  endDrag();
}

// Another screen may have less room, and draw in other pixels: the forms are fitted anew even where
// the window has kept its size.
void WindowScaling::screenChanged() {
  endDrag();
  if (largeStates(window_) == Qt::WindowNoState) {
    fitToScreen(window_);
    moveOntoScreen(window_);
  }
  gathered_.start();
}

void WindowScaling::endDrag() {
  dragEnd_.stop();
  scaled_.dragged().end();
}

bool WindowScaling::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &surface_ && event->type() == QEvent::Resize) surfaceResized();
  if (watched == &window_ && event->type() == QEvent::Show && !event->spontaneous())
    fitToScreen(window_);
  if (watched == &window_ && event->type() == QEvent::ScreenChangeInternal)
    QTimer::singleShot(0, this, &WindowScaling::screenChanged);
  if (watched == &window_ && event->type() == QEvent::WindowStateChange) stateChanged();
  return false;
}

TwipSize WindowScaling::windowSize() const {
  return {surface_.width() * kTwipsPerPixel, surface_.height() * kTwipsPerPixel};
}

}  // namespace odmiennik::app
