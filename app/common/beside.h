// SPDX-License-Identifier: GPL-3.0-or-later
// The place of a secondary window beside the main one.
#pragma once

#include <QRect>
#include <QWidget>

namespace odmiennik::app {

// The top left corner of a window of `size` with its frame: right of `main` where the screen has
// room for it, else left of it, else over its right part; never off the screen.
[[nodiscard]] QPoint besidePlace(const QRect& main, QSize size, const QRect& screen);

// Moves `window`, before it is shown, beside the frame of `main`.
void placeBeside(QWidget& window, const QWidget& main);

}  // namespace odmiennik::app
