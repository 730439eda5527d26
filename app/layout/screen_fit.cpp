// Fitting of the main window to its screen.
#include "app/layout/screen_fit.h"

#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <cmath>

#include "app/controls/control_table.h"
#include "app/controls/placement.h"

namespace odmiennik::app {
namespace {

// The window's frame; a likely one, thin edges and a title bar, where the system tells it only once
// the window is shown.
QSize frameOf(const QWidget& window) {
  constexpr QSize kLikely(2, 28);
  const QWindow* native = window.windowHandle();
  const QMargins frame = native == nullptr ? QMargins() : native->frameMargins();
  return frame.isNull() ? kLikely : QSize(0, 0).grownBy(frame);
}

}  // namespace

// Qt tells the width in the pixels that it reckons in, and rounds it: 800 at 150 % are 533.
ScreenWidth screenWidth(const QWidget& window) {
  const QScreen& screen = *window.screen();
  const auto twipsPerPixel = static_cast<float>(kTwipsPerPixel / screen.devicePixelRatio());
  const auto pixels =
      static_cast<float>(std::lround(screen.size().width() * screen.devicePixelRatio()));
  return {.twips = pixels * twipsPerPixel, .twipsPerPixel = twipsPerPixel};
}

// The thin edges at the sides may lie off the screen where everything inside them fits: a window of
// 798 pixels stays as designed on a screen of 800.
void fitToScreen(QWidget& window) {
  const QSize designed = place(kMainWindow[0]).size();
  const QSize smallestSurface = designed * 3 / 4;
  const QSize available = window.screen()->availableSize();
  const QSize room = available - frameOf(window);
  window.setMinimumSize((window.sizeHint() - designed + smallestSurface).boundedTo(room));
  QSize fitting = window.size().boundedTo(room);
  if (window.width() <= available.width()) fitting.setWidth(window.width());
  window.resize(fitting);
}

}  // namespace odmiennik::app
