// SPDX-License-Identifier: GPL-3.0-or-later
// The shapes in which answers are printed.
#pragma once

#include <memory>

#include "engine/utf8.h"
#include "formats/answer.h"

namespace odmiennik::formats {

// Appends to a text in UTF-8; knows nothing of files or terminals.
class Format {
 public:
  virtual ~Format() = default;
  // What stands before the first answer.
  virtual void begin(Utf8Text& out) = 0;
  virtual void append(Utf8Text& out, const Answer& answer) = 0;
  // Whether a blank line of input has an answer too, as a line that is refused.
  [[nodiscard]] virtual bool answersBlankLines() const { return false; }
  // What stands behind the last one.
  virtual void end(Utf8Text& /*out*/) {}
};

// The formats, a row each: what --format calls it, and what makes it, in a file of its own.
// The first one is the default.
#define ODMIENNIK_FORMATS(ROW)                                                              \
  ROW("text", makeTextFormat) /* a table that fits 80 columns; a refused verb has none */   \
  ROW("tsv", makeTsvFormat)   /* a header, then one slot a line; a refused verb has none */ \
  ROW("json", makeJsonFormat) /* one JSON object a line */                                  \
  ROW("csv", makeCsvFormat)   /* what tsv has, for spreadsheets */                          \
  ROW("markdown", makeMarkdownFormat) /* headings and tables */                             \
  ROW("html", makeHtmlFormat)         /* one page, to be printed */                         \
  ROW("anki", makeAnkiFormat)         /* cards to learn from */

#define ODMIENNIK_DECLARE(name, make) \
  [[nodiscard]] std::unique_ptr<Format> make(bool isColoured = false);
ODMIENNIK_FORMATS(ODMIENNIK_DECLARE)
#undef ODMIENNIK_DECLARE

struct FormatRow {
  Utf8View name;
  std::unique_ptr<Format> (*make)(bool isColoured);
};

#define ODMIENNIK_ROW(name, make) {name, make},
inline constexpr FormatRow kFormats[] = {ODMIENNIK_FORMATS(ODMIENNIK_ROW)};
#undef ODMIENNIK_ROW

}  // namespace odmiennik::formats
