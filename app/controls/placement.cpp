// SPDX-License-Identifier: GPL-3.0-or-later
// Twips and points to pixels.
#include "app/controls/placement.h"

#include <QSizeF>
#include <cmath>

#include "app/common/look.h"

namespace odmiennik::app {
namespace {

constexpr double kTwipsPerPoint = 20;

// Letters narrowed further than this are made smaller instead.
constexpr double kNarrowest = 0.7;

int nearestPixel(float twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); }

// Rather a little too small than too large for the box; a hair below a whole pixel is one.
int fontPixels(double points) {
  constexpr double kHair = 0.1;
  return std::max(1, static_cast<int>(points * kTwipsPerPoint / kTwipsPerPixel + kHair));
}

}  // namespace

TwipRect rectOf(const ControlRow& row) {
  const auto twips = [](int value) { return static_cast<float>(value); };
  return {twips(row.left), twips(row.top), twips(row.width), twips(row.height)};
}

QRect place(const TwipRect& rect) {
  const QPoint topLeft(nearestPixel(rect.left), nearestPixel(rect.top));
  const QPoint end(nearestPixel(rect.left + rect.width), nearestPixel(rect.top + rect.height));
  return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

QRectF exactPlace(const TwipRect& rect) {
  constexpr double kPixels = 1.0 / kTwipsPerPixel;
  return {rect.left * kPixels, rect.top * kPixels, rect.width * kPixels, rect.height * kPixels};
}

double narrowness(const QSizeF& factors) {
  constexpr double kRoomInEveryLabel = 0.96;
  const double narrowness = factors.width() / factors.height();
  return narrowness < kRoomInEveryLabel ? narrowness : 1;
}

QFont fontOf(const ControlRow& row, float points, double narrowness) {
  QFont font = programFont();
  const double smaller = std::min(1.0, narrowness / kNarrowest);
  font.setPixelSize(fontPixels(points * smaller));
  if (narrowness < 1) font.setStretch(static_cast<int>(100 * std::max(narrowness, kNarrowest)));
  font.setBold(row.isBold);
  return font;
}

QFont fontOf(const ControlRow& row) {
  return fontOf(row, static_cast<float>(row.fontHundredths) / 100);
}

}  // namespace odmiennik::app
