// SPDX-License-Identifier: GPL-3.0-or-later
// Colours of pages.
#include "app/help/page_colours.h"

namespace odmiennik::app {
namespace {

struct PageColours {
  QRgb window, base, text, link, highlight, highlightedText, mark, markedText;
};

constexpr PageColours kLight{0xFFF0F0F0, 0xFFFFFFFF, 0xFF202020, 0xFF1A56A8,
                             0xFF1F3D7A, 0xFFFFFFFF, 0xFFFFE27A, 0xFF202020};
constexpr PageColours kDark{0xFF2A2D33, 0xFF1E2024, 0xFFE4E4E4, 0xFF8AB8F5,
                            0xFF9CC5FF, 0xFF101418, 0xFF6B5900, 0xFFFFFFFF};

const PageColours& coloursOf(bool isDark) { return isDark ? kDark : kLight; }

}  // namespace

QPalette pagePalette(bool isDark) {
  const PageColours& colours = coloursOf(isDark);
  QPalette palette(QColor::fromRgb(colours.window));
  palette.setColor(QPalette::Base, colours.base);
  palette.setColor(QPalette::Text, colours.text);
  palette.setColor(QPalette::Link, colours.link);
  palette.setColor(QPalette::LinkVisited, colours.link);
  palette.setColor(QPalette::Highlight, colours.highlight);
  palette.setColor(QPalette::HighlightedText, colours.highlightedText);
  return palette;
}

QTextCharFormat markFormat(bool isDark) {
  QTextCharFormat format;
  format.setBackground(QColor(coloursOf(isDark).mark));
  format.setForeground(QColor(coloursOf(isDark).markedText));
  return format;
}

}  // namespace odmiennik::app
