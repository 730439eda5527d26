// SPDX-License-Identifier: GPL-3.0-or-later
// Placing a window beside the main one.
#include "app/common/beside.h"

#include <QScreen>
#include <algorithm>

namespace odmiennik::app {

QPoint besidePlace(const QRect& main, QSize size, const QRect& screen) {
  int left = main.x() + main.width();
  if (left + size.width() > screen.x() + screen.width()) left = main.x() - size.width();
  if (left < screen.x()) left = screen.x() + screen.width() - size.width();
  const int lowest = screen.y() + screen.height() - size.height();
  return {std::max(screen.x(), left), std::max(screen.y(), std::min(main.y(), lowest))};
}

// A window that was never shown has no frame yet; it will have one like the main window's. What is
// placed is what is inside the frame: a frame that comes later grows around it.
void placeBeside(QWidget& window, const QWidget& main) {
  const QRect taken = main.frameGeometry();
  const QSize frame = taken.size() - main.size();
  const QPoint inside = main.geometry().topLeft() - taken.topLeft();
  const QSize size =
      window.testAttribute(Qt::WA_WState_Created) ? window.size() : window.sizeHint();
  const QRect screen = main.screen()->availableGeometry();
  window.setGeometry(QRect(besidePlace(taken, size + frame, screen) + inside, size));
}

}  // namespace odmiennik::app
