// SPDX-License-Identifier: GPL-3.0-or-later
// What stands on a sheet.
#include "app/exporting/verb_sheet.h"

#include <utility>

#include "app/common/text.h"
#include "app/exporting/sheet_measures.h"
#include "dictionary/verb_labels.h"
#include "formats/phrase.h"
#include "formats/printable.h"
#include "formats/tense_tables.h"

namespace odmiennik::app {
namespace {

QString printed(std::string_view french) {
  Utf8Text text;
  formats::appendPrintable(text, french);
  return fromUtf8(text);
}

SheetPhrase phraseOf(const engine::Display& shown, int slot) {
  Utf8Text whole;
  formats::appendPhrase(whole, shown, slot);
  const QString form = printed(formats::cellOf(shown, slot).form);
  const QString phrase = fromUtf8(whole);
  return {phrase.chopped(form.size()), form};
}

SheetTable tableOf(const engine::Display& shown, const formats::TenseTable& table) {
  SheetTable sheet{fromUtf8(table.mood), {}, {}};
  if (table.rows.empty()) return sheet;
  for (const int tense : table.tenses)
    sheet.tenses += fromUtf8(engine::tenseAt(tense).name);
  for (const int row : table.rows) {
    auto& phrases = sheet.rows.emplace_back();
    for (const int tense : table.tenses)
      phrases.push_back(phraseOf(shown, formats::slotOf(tense, row)));
  }
  return sheet;
}

QString factsOf(const engine::VerbInformation& information) {
  const dictionary::VerbLabels labels = dictionary::labelsOf(information);
  const std::pair<Utf8View, Utf8View> facts[] = {{"grupa: ", labels.group},
                                                 {"przechodni: ", labels.transitive},
                                                 {"nieprzechodni: ", labels.intransitive},
                                                 {"czasownik posiłkowy: ", labels.auxiliary}};
  QStringList said;
  for (const auto& [name, value] : facts) said += fromUtf8(name) + fromUtf8(value);
  return said.join(QStringLiteral("  ·  "));
}

constexpr double kLargest = 11, kSmallest = 8, kStep = 0.5, kOnSeveralPages = 10;
constexpr double kTightest = 0.85;

}  // namespace

SheetText sheetText(const formats::Answer& answer, std::size_t columnCount) {
  const engine::Display& shown = answer.conjugation.shown;
  SheetText text{printed(formats::cellOf(shown, engine::slot::kInfinitive).form),
                 factsOf(answer.conjugation.information),
                 {}};
  for (const formats::TenseTable& table : formats::tenseTablesOf(shown, answer.printed, columnCount))
    if (!table.mood.empty() || !table.rows.empty()) text.tables.push_back(tableOf(shown, table));
  return text;
}

double heightOf(const SheetTable& table, double size) {
  const double mood = table.mood.isEmpty() ? 0 : kMood;
  if (table.rows.empty()) return mood * size;
  return (mood + kHeading + kLine * static_cast<double>(table.rows.size()) + kBehindTable) * size;
}

double heightOf(const SheetText& text, double size) {
  double height = kTitleHeight + kFactsHeight;
  for (const SheetTable& table : text.tables) height += heightOf(table, size);
  return height;
}

double columnWidth(double width, std::size_t columnCount) {
  const auto columns = static_cast<double>(columnCount);
  return (width - (columns - 1) * kColumnGap) / columns;
}

std::optional<double> sizeOnOnePage(const SheetText& text, std::size_t columnCount, double widest,
                                    QSizeF page) {
  const double room = columnWidth(page.width(), columnCount) - kIndent;
  const auto fits = [&](double size, double tightness) {
    return widest * size * tightness <= room && heightOf(text, size) <= page.height();
  };
  for (double size = kLargest; size >= kSmallest; size -= kStep)
    if (fits(size, 1)) return size;
  return fits(kSmallest, kTightest) ? std::optional(kSmallest) : std::nullopt;
}

Sheet sheetOf(const formats::Answer& answer, const std::function<double(const SheetText&)>& widest,
              QSizeF page) {
  SheetText text = sheetText(answer, 3);
  const double width = widest(text);
  const auto isNarrow = [&](std::size_t columnCount, double size) {
    return width * size > columnWidth(page.width(), columnCount) - kIndent;
  };
  if (const auto size = sizeOnOnePage(text, 3, width, page))
    return {std::move(text), 3, *size, isNarrow(3, *size)};
  const std::size_t columnCount = isNarrow(2, kOnSeveralPages) ? 1 : 2;
  return {sheetText(answer, columnCount), columnCount, kOnSeveralPages,
          isNarrow(columnCount, kOnSeveralPages)};
}

}  // namespace odmiennik::app
