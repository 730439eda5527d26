// SPDX-License-Identifier: GPL-3.0-or-later
// Always on top.
#include "app/logic/always_on_top.h"

#include <algorithm>
#include <cmath>

namespace odmiennik::app {
namespace {

constexpr double kShiftTwips = -60;

// Rounds a half to the even pixel.
int pixels(double twips, double twipsPerPixel) {
  return static_cast<int>(std::nearbyint(twips / twipsPerPixel));
}

}  // namespace

WindowPlace placeOnTop(bool isOnTop, const Screen& screen) {
  WindowPlace place{0, 0, screen.twipsWidth, screen.twipsHeight};
  if (!isOnTop) return place;
  place.x = pixels(kShiftTwips, screen.twipsPerPixelX);
  place.y = pixels(kShiftTwips, screen.twipsPerPixelY);
  return place;
}

WindowPlace limitedPlaceOnTop(bool isOnTop, const Screen& screen) {
  WindowPlace place = placeOnTop(isOnTop, screen);
  place.width = std::min(place.width, pixels(screen.twipsWidth, screen.twipsPerPixelX));
  place.height = std::min(place.height, pixels(screen.twipsHeight, screen.twipsPerPixelY));
  return place;
}

}  // namespace odmiennik::app
