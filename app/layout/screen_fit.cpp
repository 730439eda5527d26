// SPDX-License-Identifier: GPL-3.0-or-later
// Fitting of the main window to its screen.
#include "app/layout/screen_fit.h"

#include <QScreen>
#include <QWidget>
#include <cmath>

#include "app/controls/control_table.h"
#include "app/controls/placement.h"
#include "app/layout/screen_room.h"
#include "app/platform/platform.h"

namespace odmiennik::app {

// Qt tells the width in the pixels that it reckons in, and rounds it: 800 at 150 % are 533.
ScreenWidth screenWidth(const QWidget& window) {
  const QScreen& screen = *window.screen();
  const auto twipsPerPixel = static_cast<float>(kTwipsPerPixel / screen.devicePixelRatio());
  const auto pixels =
      static_cast<float>(std::lround(screen.size().width() * screen.devicePixelRatio()));
  return {.twips = pixels * twipsPerPixel, .twipsPerPixel = twipsPerPixel};
}

// The thin edges at the sides may lie off the screen where everything inside them fits: a window of
// 798 pixels stays as designed on a screen of 800. A compositor places it as it likes.
void fitToScreen(QWidget& window) {
  const QSize designed = place(kMainWindow[0]).size();
  const QSize smallestSurface = designed * 3 / 4;
  const QSize room = screenRoom(window);
  window.setMinimumSize((window.sizeHint() - designed + smallestSurface).boundedTo(room));
  QSize fitting = window.size().boundedTo(room);
  if (platform::mayPlaceWindows() && window.width() <= availableSize(window).width())
    fitting.setWidth(window.width());
  window.resize(fitting);
}

}  // namespace odmiennik::app
