// SPDX-License-Identifier: GPL-3.0-or-later
// The table that a person reads: what is known of the verb, then its tenses by mood.
#include <algorithm>

#include "dictionary/verb_labels.h"
#include "formats/format.h"
#include "formats/page.h"
#include "formats/text_layout.h"

namespace odmiennik::formats {
namespace {

using engine::tenseAt;

constexpr Utf8View kMissingText = "--";

Utf8View sourceText(engine::Source source) {
  constexpr Utf8View kTexts[] = {"brak", "użytkownik", "wbudowane", "reguła"};
  return kTexts[static_cast<std::size_t>(source)];
}

// A tense's name as a heading; no name begins with an accented letter.
Utf8Text headingOf(int tense) {
  Utf8Text name(tenseAt(tense).name);
  name[0] = static_cast<char>(name[0] - 'a' + 'A');
  return name;
}

// One verb on the page.
class VerbTable {
 public:
  VerbTable(Page& page, const Answer& answer)
      : page_(page),
        conjugation_(answer.conjugation),
        shown_(answer.conjugation.shown),
        slots_(answer.printed),
        columnCount_(columnCountFor(answer.conjugation.shown, answer.printed)) {}

  void write() {
    writeTitle();
    writeInformation();
    Utf8View mood;
    for (const Band band : bandsOf(columnCount_)) {
      const std::vector<int> tenses = chosenOf(band, slots_);
      if (tenses.empty()) continue;
      page_.endLine();
      if (const auto next = tenseAt(tenses.front()).mood; next != mood) writeMood(mood = next);
      writeBand(tenses);
    }
  }

 private:
  void writeTitle() {
    beginRule("═", Style::title);
    page_.addFrench(cellOf(shown_, engine::slot::kInfinitive).form, Style::title);
    endRule("═", Style::title);
  }

  void writeMood(Utf8View mood) {
    beginRule("─", Style::mood);
    page_.addUtf8(mood, Style::mood);
    endRule("─", Style::mood);
  }

  // A rule over the whole page, with a text near its beginning.
  void beginRule(Utf8View dash, Style style) {
    page_.addRule(dash, 2, style);
    page_.moveTo(3);
  }

  void endRule(Utf8View dash, Style style) {
    page_.moveTo(page_.column() + 1);
    page_.addRule(dash, kPageWidth - 1, style);
    page_.endLine();
  }

  void writeInformation() {
    const dictionary::VerbLabels labels = dictionary::labelsOf(conjugation_.information);
    writeFact(0, "grupa: ", labels.group);
    writeFact(1, "przechodni: ", labels.transitive);
    writeFact(2, "nieprzechodni: ", labels.intransitive);
    page_.endLine();
    writeFact(0, "posiłkowy: ", labels.auxiliary);
    writeFact(1, "rząd: ", labels.government);
    writeFact(2, "źródło: ", sourceText(conjugation_.source));
    page_.endLine();
    writeNotes();
  }

  void writeFact(std::size_t column, Utf8View name, Utf8View value) {
    page_.moveTo(column * (columnWidth(3) + kColumnGap));
    page_.addUtf8(name, Style::missing);
    page_.addUtf8(value);
  }

  // What the labels alone would leave open: the model, and an auxiliary other than the one named.
  void writeNotes() {
    const Utf8View auxiliary = dictionary::auxiliaryName(conjugation_.flags.auxiliary);
    const bool isOther = dictionary::labelsOf(conjugation_.information).auxiliary != auxiliary;
    if (isOther) writeFact(0, "złożone z: ", auxiliary);
    if (!conjugation_.model.empty()) writeFact(isOther ? 1 : 0, "model: ", conjugation_.model);
    if (isOther || !conjugation_.model.empty()) page_.endLine();
  }

  void writeBand(Band band) {
    writeCells(band, [&](int tense) { page_.addUtf8(headingOf(tense), Style::tense); });
    const bool isSubjunctive = !captionOf(shown_, band.front()).empty();
    if (isSubjunctive)
      writeCells(band,
                 [&](int tense) { page_.addFrench(captionOf(shown_, tense), Style::caption); });
    bool hasRow = false;
    for (int row = 0; row < tenseAt(band.front()).slotCount; ++row) {
      if (isRowMissing(band, row)) continue;
      hasRow = true;
      writeCells(band, [&](int tense) { writeCell(cellAt(tense, row)); });
    }
    if (!hasRow) writeCells(band, [&](int) { writeCell({}); });
  }

  template <typename WriteOne>
  void writeCells(Band band, WriteOne writeOne) {
    std::size_t column = 0;
    for (const int tense : band) {
      page_.moveTo(column);
      writeOne(tense);
      column += columnWidth(columnCount_) + kColumnGap;
    }
    page_.endLine();
  }

  void writeCell(const Cell& cell) {
    if (cell.isMissing()) return page_.addUtf8(kMissingText, Style::missing);
    page_.addFrench(cell.pronoun, Style::pronoun);
    if (cell.hasBlank()) page_.addUtf8(" ");
    page_.addFrench(cell.form);
  }

  [[nodiscard]] Cell cellAt(int tense, int row) const {
    return cellOf(shown_, tenseAt(tense).firstSlot + row);
  }

  // A person that none of the tenses has, or that is not asked for, is left out.
  [[nodiscard]] bool isRowMissing(Band band, int row) const {
    return std::all_of(band.begin(), band.end(), [&](int tense) {
      return !slots_.has(tenseAt(tense).firstSlot + row) || cellAt(tense, row).isMissing();
    });
  }

  Page& page_;
  const engine::Conjugation& conjugation_;
  const engine::Display& shown_;
  const SlotChoice& slots_;
  std::size_t columnCount_;
};

class TextFormat final : public Format {
 public:
  explicit TextFormat(bool isColoured) : isColoured_(isColoured) {}

  void begin(Utf8Text&) override {}
  void append(Utf8Text& out, const Answer& answer) override {
    if (answer.isRefused) return;
    if (!isFirst_) out.append("\n\n");
    isFirst_ = false;
    Page page(out, isColoured_);
    VerbTable(page, answer).write();
  }

 private:
  bool isColoured_;
  bool isFirst_ = true;
};

}  // namespace

std::unique_ptr<Format> makeTextFormat(bool isColoured) {
  return std::make_unique<TextFormat>(isColoured);
}

}  // namespace odmiennik::formats
