// SPDX-License-Identifier: GPL-3.0-or-later
// From the table's twips and points to Qt's pixels and fonts.
#pragma once

#include <QFont>
#include <QRect>
#include <QRectF>

#include "app/controls/control_row.h"

namespace odmiennik::app {

// A place that need not fall on whole twips.
struct TwipRect {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
};

[[nodiscard]] TwipRect rectOf(const ControlRow& row);

// The place in whole pixels, as a widget takes it. Every edge goes to the nearest pixel, so that
// places which do not overlap in twips do not overlap in pixels.
[[nodiscard]] QRect place(const TwipRect& rect);
[[nodiscard]] inline QRect place(const ControlRow& row) { return place(rectOf(row)); }

// The same for what is painted, which need not fall on whole pixels.
[[nodiscard]] QRectF exactPlace(const TwipRect& rect);
[[nodiscard]] inline QRectF exactPlace(const ControlRow& row) { return exactPlace(rectOf(row)); }

// How much narrower than high a window has become, whose width and height were multiplied by
// `factors`; 1 when its texts need not be narrowed: narrowness({1.5, 2}) -> 0.75.
[[nodiscard]] double narrowness(const QSizeF& factors);

// The program's own font in the weight of a row and the size of `points`. A point is 20 twips
// whatever the screen says of its resolution, so that letters and boxes keep their proportion. The
// size follows the window's height; in a window that is narrower than high the letters are narrowed
// with it.
[[nodiscard]] QFont fontOf(const ControlRow& row, float points, double narrowness = 1);
[[nodiscard]] QFont fontOf(const ControlRow& row);

}  // namespace odmiennik::app
