// SPDX-License-Identifier: GPL-3.0-or-later
// The user's mouse pointer as a demonstration moves it.
#pragma once

#include <QPoint>
#include <functional>

namespace odmiennik::app {

// Places are those of the screen. `moveTo` tells whether the pointer went there: some desktops let
// no program move it.
struct ScreenPointer {
  std::function<QPoint()> position;
  std::function<bool(QPoint)> moveTo;
};

// The pointer of the desktop.
[[nodiscard]] ScreenPointer systemPointer();

}  // namespace odmiennik::app
