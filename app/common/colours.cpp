// The colours of the window's design.
#include "app/common/colours.h"

namespace odmiennik::app {
namespace {

constexpr QRgb kMoodOnLight = 0xFF8C1D40;   // wine
constexpr QRgb kTenseOnLight = 0xFF1D4F91;  // ink
constexpr QRgb kMoodOnDark = 0xFFFF9DB4;
constexpr QRgb kTenseOnDark = 0xFF9CC5FF;

QColor mixed(const QColor& first, const QColor& second, float share) {
  const auto part = [share](float a, float b) { return a + (b - a) * share; };
  return QColor::fromRgbF(part(first.redF(), second.redF()), part(first.greenF(), second.greenF()),
                          part(first.blueF(), second.blueF()));
}

}  // namespace

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

HeadingColours designColours(const QPalette& palette) {
  return isDark(palette) ? HeadingColours{kMoodOnDark, kTenseOnDark}
                         : HeadingColours{kMoodOnLight, kTenseOnLight};
}

QColor panelColour(const QPalette& palette) {
  constexpr float kShareOfHighlight = 0.18F;
  return mixed(palette.color(QPalette::Window), palette.color(QPalette::Highlight),
               kShareOfHighlight);
}

QColor separatorColour(const QPalette& palette) {
  constexpr float kShareOfText = 0.22F;
  return mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), kShareOfText);
}

}  // namespace odmiennik::app
