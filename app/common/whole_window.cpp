// SPDX-License-Identifier: GPL-3.0-or-later
// Growing of windows.
#include "app/common/whole_window.h"

#include <QLayout>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <algorithm>

namespace odmiennik::app {
namespace {

QSize neededBy(const QWidget& window) {
  const QSize least =
      window.layout() == nullptr ? QSize(0, 0) : window.layout()->totalMinimumSize();
  return least.expandedTo(window.minimumSize());
}

// The top left corner, where the title is, stays on the screen in any case.
int within(int first, int length, int from, int room) {
  return std::max(from, std::min(first, from + room - length));
}

}  // namespace

void makeWholeLater(QWidget& window) {
  QTimer::singleShot(0, &window, [&window] {
    window.resize(window.size().expandedTo(neededBy(window)));
    moveOntoScreen(window);
  });
}

void moveOntoScreen(QWidget& window) {
  const QRect room = window.screen()->availableGeometry();
  const QRect frame = window.frameGeometry();
  const QPoint place(within(frame.x(), frame.width(), room.x(), room.width()),
                     within(frame.y(), frame.height(), room.y(), room.height()));
  if (place != frame.topLeft()) window.move(place);
}

}  // namespace odmiennik::app
