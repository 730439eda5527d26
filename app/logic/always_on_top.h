// SPDX-License-Identifier: GPL-3.0-or-later
// Where the main window is put when it is to stay above all others, and when no longer.
#pragma once

namespace odmiennik::app {

// In the system's pixels.
struct WindowPlace {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  bool operator==(const WindowPlace&) const = default;
};

struct Screen {
  int twipsWidth = 12000;
  int twipsHeight = 9000;
  double twipsPerPixelX = 15;
  double twipsPerPixelY = 15;
};

// Shows the window without activating it.
inline constexpr unsigned kSetWindowPosFlags = 0x50;

// What the system is asked for. deliberate: the screen's twips are given as pixels in both
// directions, so that the window is laid over the whole screen; switched off, it moves to the
// corner.
[[nodiscard]] WindowPlace placeOnTop(bool isOnTop, const Screen& screen);

// The same with the size that a system gives which does not limit it itself: the screen's.
[[nodiscard]] WindowPlace limitedPlaceOnTop(bool isOnTop, const Screen& screen);

}  // namespace odmiennik::app
