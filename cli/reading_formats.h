// SPDX-License-Identifier: GPL-3.0-or-later
// The shapes in which is printed what a form may be.
#pragma once

#include <string>
#include <string_view>

#include "finder/reading.h"

namespace odmiennik::cli {

// Appends to a text in UTF-8, as the formats of a conjugation do.
struct ReadingFormat {
  std::string_view name;    // as --format calls it
  std::string_view header;  // what stands before the first answer
  // `typed` is UTF-8; without readings it was found nowhere, and what is read line by line is
  // silent.
  void (*append)(std::string& out, std::string_view typed, const finder::Readings& readings);
};

// The format of that name; nothing when what a form may be cannot be printed so.
[[nodiscard]] const ReadingFormat* readingFormatNamed(std::string_view name);

}  // namespace odmiennik::cli
