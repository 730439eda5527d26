// SPDX-License-Identifier: GPL-3.0-or-later
// Foreign text on a terminal: shown, never obeyed.
#pragma once

#include <algorithm>
#include <iterator>

#include "engine/utf8.h"

namespace odmiennik::dictionary {

struct CodePointRange {
  char32_t first;
  char32_t last;
};

// In ascending order.
inline constexpr CodePointRange kActingOnTerminal[] = {
    {0x0000, 0x001F},    // controls
    {0x007F, 0x009F},    // delete and the second set of controls
    {0x00AD, 0x00AD},    // soft hyphen
    {0x061C, 0x061C},    // Arabic letter mark
    {0x180E, 0x180E},    // Mongolian vowel separator
    {0x200B, 0x200F},    // without width; joiners; marks of direction
    {0x2028, 0x202E},    // line and paragraph ends; embeddings and overrides of direction
    {0x2060, 0x206F},    // without width; isolates of direction
    {0xFE00, 0xFE0F},    // variation selectors
    {0xFEFF, 0xFEFF},    // byte-order mark
    {0xFFF9, 0xFFFB},    // annotations
    {0xE0000, 0xE0FFF},  // tags, further selectors
};

// Whether the code point acts instead of standing there as a letter: control characters, what
// changes the direction of writing, what is not seen or breaks the line ("U+202E", "U+200B").
[[nodiscard]] constexpr bool actsOnTerminal(char32_t codePoint) {
  const auto* range =
      std::ranges::lower_bound(kActingOnTerminal, codePoint, {}, &CodePointRange::last);
  return range != std::end(kActingOnTerminal) && codePoint >= range->first;
}

// Appends text of any origin for people to read: what acts on a terminal, and each byte that is no
// UTF-8, as an escape: "a<ESC>[31m" -> "a\x1B[31m", U+0085 -> "\u0085", U+202E -> "\u202E". All
// else stays as it is, a backslash too.
void appendPrintable(Utf8Text& out, Utf8View utf8);

// The text alone.
[[nodiscard]] Utf8Text printable(Utf8View utf8);

}  // namespace odmiennik::dictionary
