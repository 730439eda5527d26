// The colours of headings and grounds.
#pragma once

#include <QColor>
#include <QPalette>

namespace odmiennik::app {

// The two colours that the user may choose.
struct HeadingColours {
  QColor mood;
  QColor tense;
};

// Whether texts of the palette stand on a dark ground.
[[nodiscard]] bool isDark(const QPalette& palette);

// The colours of the window's design: on light and on dark grounds at a contrast of 4.5:1 or more.
[[nodiscard]] HeadingColours designColours(const QPalette& palette);

// The ground behind the entry box, which marks the place to start.
[[nodiscard]] QColor panelColour(const QPalette& palette);

// Thin lines between the blocks.
[[nodiscard]] QColor separatorColour(const QPalette& palette);

}  // namespace odmiennik::app
