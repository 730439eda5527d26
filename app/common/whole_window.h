// SPDX-License-Identifier: GPL-3.0-or-later
// Windows that come to another screen.
#pragma once

class QWidget;

namespace odmiennik::app {

// Once the event under way is over, makes a window that has come to another screen large enough for
// its parts, and moves it onto the screen: one that draws everything larger has kept the window as
// large as it was, too small for what is in it.
void makeWholeLater(QWidget& window);

// Moves a window onto its screen as far as it fits, its frame included, where a program may.
void moveOntoScreen(QWidget& window);

}  // namespace odmiennik::app
