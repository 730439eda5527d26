// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of the window's design.
#include "app/common/colours.h"

#include <algorithm>
#include <cmath>

#include "app/logic/colour_number.h"

namespace odmiennik::app {
namespace {

QColor mixed(const QColor& first, const QColor& second, float share) {
  const auto part = [share](float a, float b) { return a + (b - a) * share; };
  return QColor::fromRgbF(part(first.redF(), second.redF()), part(first.greenF(), second.greenF()),
                          part(first.blueF(), second.blueF()));
}

double linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

bool isVisible(const QColor& colour, const QPalette& palette) {
  constexpr QPalette::ColorRole kGrounds[] = {QPalette::Window, QPalette::Base, QPalette::Button};
  return std::ranges::all_of(kGrounds, [&](QPalette::ColorRole ground) {
    return contrast(colour, palette.color(ground)) >= kVisibleContrast;
  });
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

double contrast(const QColor& first, const QColor& second) {
  const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
  constexpr double kFlare = 0.05;
  return (lighter + kFlare) / (darker + kFlare);
}

QColor visibleColour(const QColor& colour, const QPalette& palette) {
  constexpr float kStep = 1.0F / 32;
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  for (float share = 0; share < 1; share += kStep)
    if (const QColor seen = mixed(colour, text, share); isVisible(seen, palette)) return seen;
  return text;
}

QPalette withReadableDisabled(QPalette palette) {
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role,
                     visibleColour(palette.color(QPalette::Disabled, role), palette));
  return palette;
}

QColor edgeColour(const QPalette& palette) {
  return visibleColour(separatorColour(palette), palette);
}

QColor lockedColour(const QPalette& palette) {
  constexpr float kShareOfWindow = 0.7F;
  return mixed(palette.color(QPalette::Base), palette.color(QPalette::Window), kShareOfWindow);
}

QColor panelColour(const QPalette& palette) {
  constexpr float kShareOfHighlight = 0.18F;
  return mixed(palette.color(QPalette::Window), palette.color(QPalette::Highlight),
               kShareOfHighlight);
}

QColor departureColour(const QPalette& palette) {
  constexpr QRgb kOchre = 0xFFC77700;
  return visibleColour(QColor::fromRgb(kOchre), palette);
}

QColor separatorColour(const QPalette& palette) {
  constexpr float kShareOfText = 0.22F;
  return mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), kShareOfText);
}

}  // namespace odmiennik::app
