// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of a text table: pieces in colours, filled up with blanks to columns.
#pragma once

#include <string_view>

#include "engine/utf8.h"

namespace odmiennik::formats {

enum class Style { plain, title, mood, tense, pronoun, caption, missing };

// Writes line after line at the end of a text. Colours take no room; no line ends in blanks.
class Page {
 public:
  Page(Utf8Text& out, bool isColoured) : out_(out), isColoured_(isColoured) {}

  void addFrench(std::string_view french, Style style = Style::plain);
  void addUtf8(Utf8View utf8, Style style = Style::plain);
  void addRule(Utf8View utf8Dash, std::size_t endColumn, Style style);

  // The next text stands in this column, counted from 0, or further right.
  void moveTo(std::size_t column) { wanted_ = column; }
  void endLine();

  // Where the last text ended.
  [[nodiscard]] std::size_t column() const { return column_; }

 private:
  void fillUp();
  void beginStyle(Style style);
  void endStyle(Style style);

  Utf8Text& out_;
  bool isColoured_;
  std::size_t column_ = 0;
  std::size_t wanted_ = 0;
};

// How many letters UTF-8 text has.
[[nodiscard]] std::size_t letterCount(Utf8View utf8);

}  // namespace odmiennik::formats
