// SPDX-License-Identifier: GPL-3.0-or-later
// Where a long text is cut into pages.
#pragma once

#include <vector>

namespace odmiennik::app {

// A part of the text, from its upper to its lower edge.
struct Strip {
  double top = 0;
  double bottom = 0;

  [[nodiscard]] double height() const { return bottom - top; }
  bool operator==(const Strip&) const = default;
};

// A line or a row of a table: never cut, unless it is higher than a page.
struct TextPiece {
  Strip place;
  bool staysWithNext = false;  // a heading with its text, the first two lines of a paragraph
  Strip heading{};  // the first row of its table, printed again where a page begins with the piece
};

struct TextPage {
  Strip heading;  // empty where nothing is printed again
  Strip part;

  bool operator==(const TextPage&) const = default;
};

// The pages that show all pieces, in their order, none higher than `height`. Pieces that stay
// together are parted only where they are longer than a page.
[[nodiscard]] std::vector<TextPage> pagesOf(const std::vector<TextPiece>& pieces, double height);

}  // namespace odmiennik::app
