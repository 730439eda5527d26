// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of headings and grounds.
#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace odmiennik::app {

// The two colours that the user may choose.
struct HeadingColours {
  QColor mood;
  QColor tense;
};

// The design's own, for light and for dark grounds.
inline constexpr QRgb kMoodOnLight = 0xFF8C1D40;   // wine
inline constexpr QRgb kTenseOnLight = 0xFF1D4F91;  // ink
inline constexpr QRgb kMoodOnDark = 0xFFFF9DB4;
inline constexpr QRgb kTenseOnDark = 0xFF9CC5FF;

// A colour as the number of the settings file: numberOf(Qt::red) -> 255.
[[nodiscard]] std::int32_t numberOf(const QColor& colour);

// The colour of a number of the settings file; `themeText` for a system colour of old files.
[[nodiscard]] QColor colourOfNumber(std::int32_t number, const QColor& themeText);

// Whether texts of the palette stand on a dark ground.
[[nodiscard]] bool isDark(const QPalette& palette);

// The colours of the window's design: on light and on dark grounds at a contrast of 4.5:1 or more.
[[nodiscard]] HeadingColours designColours(const QPalette& palette);

// The contrast ratio of two colours, 1 to 21, as accessibility guidelines define it.
[[nodiscard]] double contrast(const QColor& first, const QColor& second);

// What has to be seen is seen at this contrast, though it be disabled or no more than an edge.
inline constexpr double kVisibleContrast = 3;

// The first colour on the way from `colour` to the palette's text that is seen on its grounds.
[[nodiscard]] QColor visibleColour(const QColor& colour, const QPalette& palette);

// The palette with texts of the disabled that can be read on its grounds.
[[nodiscard]] QPalette withReadableDisabled(QPalette palette);

// The edge of what can be typed into or ticked, visible on every ground.
[[nodiscard]] QColor edgeColour(const QPalette& palette);

// The ground of a box that cannot be typed into: between that of one that can and the window's.
[[nodiscard]] QColor lockedColour(const QPalette& palette);

// The ground behind the entry box, which marks the place to start.
[[nodiscard]] QColor panelColour(const QPalette& palette);

// The mark of a form that departs from today's norm.
[[nodiscard]] QColor departureColour(const QPalette& palette);

// Thin lines between the blocks, and the edges of what cannot be typed into.
[[nodiscard]] QColor separatorColour(const QPalette& palette);

}  // namespace odmiennik::app
