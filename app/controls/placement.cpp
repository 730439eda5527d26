// Twips and points to pixels.
#include "app/controls/placement.h"

#include "app/common/look.h"

namespace odmiennik::app {
namespace {

constexpr double kTwipsPerPoint = 20;

constexpr int pixels(int twips) { return twips / kTwipsPerPixel; }

}  // namespace

QRect place(const ControlRow& row) {
  return {pixels(row.left), pixels(row.top), pixels(row.width), pixels(row.height)};
}

QRectF exactPlace(const ControlRow& row) {
  constexpr double kPixels = 1.0 / kTwipsPerPixel;
  return {row.left * kPixels, row.top * kPixels, row.width * kPixels, row.height * kPixels};
}

QFont fontOf(const ControlRow& row) {
  QFont font = programFont();
  font.setPixelSize(qRound(row.fontHundredths * kTwipsPerPoint / (100 * kTwipsPerPixel)));
  font.setBold(row.isBold);
  return font;
}

}  // namespace odmiennik::app
