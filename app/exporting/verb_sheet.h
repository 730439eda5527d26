// SPDX-License-Identifier: GPL-3.0-or-later
// A conjugation as it is set on a sheet of paper: what stands where, and how large.
#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "formats/answer.h"

namespace odmiennik::app {

// A form behind what is said before it: "que nous ", "parlions".
struct SheetPhrase {
  QString subject;
  QString form;
};

// Tenses side by side, a row a person.
struct SheetTable {
  QString mood;  // where a mood begins; else empty
  QStringList tenses;
  std::vector<std::vector<SheetPhrase>> rows;
};

struct SheetText {
  QString infinitive;
  QString facts;  // what is known of the verb
  std::vector<SheetTable> tables;
};

// The texts of a verb in tables of up to so many columns; tables without a form are left out, but
// for a mood that they begin.
[[nodiscard]] SheetText sheetText(const formats::Answer& answer, std::size_t columnCount);

// Heights in points, of letters of `size` points.
[[nodiscard]] double heightOf(const SheetTable& table, double size);
[[nodiscard]] double heightOf(const SheetText& text, double size);

// Of each of so many columns side by side.
[[nodiscard]] double columnWidth(double width, std::size_t columnCount);

// The largest letters in which the whole text stands on one page and no phrase is wider than its
// column, a little tighter where it must be; nothing where none are large enough to be read.
// `widest` is the width of the widest phrase in points a point of its letters.
[[nodiscard]] std::optional<double> sizeOnOnePage(const SheetText& text, std::size_t columnCount,
                                                  double widest, QSizeF page);

// A verb as it is set.
struct Sheet {
  SheetText text;
  std::size_t columnCount;
  double size;    // of the letters
  bool isNarrow;  // some phrase is wider than its column
};

// In as many columns as there is room for, on one page where it fits. `widest` measures a text as
// above.
[[nodiscard]] Sheet sheetOf(const formats::Answer& answer,
                            const std::function<double(const SheetText&)>& widest, QSizeF page);

}  // namespace odmiennik::app
