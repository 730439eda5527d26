// SPDX-License-Identifier: GPL-3.0-or-later
// How large a window may be.
#pragma once

#include <QSize>

class QWidget;

namespace odmiennik::app {

// What stands around the inside of a window: its frame as the system tells it, a likely one before
// it does.
[[nodiscard]] QSize frameOf(const QWidget& window);

// What the window's screen offers to windows with their frames: without its panels, also where a
// compositor does not tell of them.
[[nodiscard]] QSize availableSize(const QWidget& window);

// What is left of that for the inside of the window.
[[nodiscard]] QSize screenRoom(const QWidget& window);

// Moves the parts of a window that is higher than that closer together, and the window, not yet
// shown, to the top of its screen, below a title bar like the main window's. For
// one of Qt's own, which has nothing that could be lower.
void drawTogether(QWidget& window);

}  // namespace odmiennik::app
