// SPDX-License-Identifier: GPL-3.0-or-later
// The shapes in which is printed what a form may be.
#pragma once

#include "engine/utf8.h"
#include "finder/reading.h"

namespace odmiennik::cli {

// Appends to a text in UTF-8, as the formats of a conjugation do.
struct ReadingFormat {
  Utf8View name;    // as --format calls it
  Utf8View header;  // what stands before the first answer
  // `typed` is UTF-8; without readings it was found nowhere, and what is read line by line is
  // silent.
  void (*append)(Utf8Text& out, Utf8View typed, const finder::Readings& readings);
};

// "exact", "accents", "slip": how a form found differs from what was typed.
[[nodiscard]] Utf8View nameOf(finder::Match match);

// The format of that name; nothing when what a form may be cannot be printed so.
[[nodiscard]] const ReadingFormat* readingFormatNamed(Utf8View name);

}  // namespace odmiennik::cli
