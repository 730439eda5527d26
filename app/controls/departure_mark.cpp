// SPDX-License-Identifier: GPL-3.0-or-later
// A folded corner.
#include "app/controls/departure_mark.h"

#include <QPolygonF>
#include <algorithm>

#include "app/common/colours.h"

namespace odmiennik::app {

double departureMarkSize(int height) {
  constexpr double kShare = 0.3, kLeast = 5;
  return std::max(kLeast, height * kShare);
}

void paintDepartureMark(QPainter& painter, QPointF corner, double size, const QPalette& palette) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(departureColour(palette));
  painter.drawPolygon(
      QPolygonF{{corner.x() - size, corner.y()}, corner, {corner.x(), corner.y() + size}});
}

}  // namespace odmiennik::app
