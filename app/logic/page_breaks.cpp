// SPDX-License-Identifier: GPL-3.0-or-later
// Cutting into pages.
#include "app/logic/page_breaks.h"

#include <algorithm>
#include <cstddef>

namespace odmiennik::app {
namespace {

// The first piece that has no room on a page that begins with piece `first`.
std::size_t firstWithoutRoom(const std::vector<TextPiece>& pieces, std::size_t first,
                             double height) {
  std::size_t piece = first;
  while (piece < pieces.size() && pieces[piece].place.bottom - pieces[first].place.top <= height)
    ++piece;
  return piece;
}

// The piece with which the next page begins.
std::size_t nextFirst(const std::vector<TextPiece>& pieces, std::size_t first, double height) {
  const std::size_t end = firstWithoutRoom(pieces, first, height);
  std::size_t next = end;
  while (next < pieces.size() && next > first && pieces[next - 1].staysWithNext) --next;
  return next > first ? next : std::max(end, first + 1);
}

}  // namespace

std::vector<TextPage> pagesOf(const std::vector<TextPiece>& pieces, double height) {
  std::vector<TextPage> pages;
  for (std::size_t first = 0; first < pieces.size();) {
    const Strip heading = pieces[first].heading;
    const double room = std::max(height - heading.height(), 1.0);
    const std::size_t next = nextFirst(pieces, first, room);
    const double bottom = pieces[next - 1].place.bottom;
    // More than one page only for a single piece that is higher than a page.
    for (double top = pieces[first].place.top; top < bottom; top += room)
      pages.push_back({heading, {top, std::min(top + room, bottom)}});
    first = next;
  }
  return pages;
}

}  // namespace odmiennik::app
