// The colours of the window's design.
#include "app/common/colours.h"

#include "app/logic/colour_number.h"

namespace odmiennik::app {
namespace {

QColor mixed(const QColor& first, const QColor& second, float share) {
  const auto part = [share](float a, float b) { return a + (b - a) * share; };
  return QColor::fromRgbF(part(first.redF(), second.redF()), part(first.greenF(), second.greenF()),
                          part(first.blueF(), second.blueF()));
}

}  // namespace

std::int32_t numberOf(const QColor& colour) {
  const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
  return colourNumber({part(colour.red()), part(colour.green()), part(colour.blue())});
}

QColor colourOfNumber(std::int32_t number, const QColor& themeText) {
  const auto colour = colourOf(number);
  return colour ? QColor(colour->red, colour->green, colour->blue) : themeText;
}

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

HeadingColours designColours(const QPalette& palette) {
  return isDark(palette) ? HeadingColours{kMoodOnDark, kTenseOnDark}
                         : HeadingColours{kMoodOnLight, kTenseOnLight};
}

bool losesEdges(const QPalette& palette) {
  constexpr int kNearlyBlack = 16;
  return palette.color(QPalette::Window).lightness() < kNearlyBlack &&
         palette.color(QPalette::Base).lightness() < kNearlyBlack;
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
