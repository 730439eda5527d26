// SPDX-License-Identifier: GPL-3.0-or-later
// The main window and its screen.
#pragma once

#include <QSize>

#include "app/logic/rescaling.h"

class QWidget;

namespace odmiennik::app {

// The width of the window's screen in twips, and how many of them are one of its own pixels,
// however large the desktop draws on them.
[[nodiscard]] ScreenWidth screenWidth(const QWidget& window);

// Lets the window become no smaller than its boxes are usable, which is three quarters of the
// design, where the screen has that much room; and makes it fit the screen, frame and all, where it
// is too large for it.
void fitToScreen(QWidget& window);

}  // namespace odmiennik::app
