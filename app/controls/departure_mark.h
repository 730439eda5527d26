// SPDX-License-Identifier: GPL-3.0-or-later
// The mark of what departs from today's norm.
#pragma once

#include <QPainter>
#include <QPointF>

namespace odmiennik::app {

// How wide and high the mark of a part is whose height this is, in pixels.
[[nodiscard]] double departureMarkSize(int height);

// A corner as of a folded page, below and left of `corner`: seen by its shape.
void paintDepartureMark(QPainter& painter, QPointF corner, double size, const QPalette& palette);

}  // namespace odmiennik::app
