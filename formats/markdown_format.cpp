// SPDX-License-Identifier: GPL-3.0-or-later
// Markdown: a heading a verb, a table a few tenses.
#include "dictionary/verb_labels.h"
#include "formats/format.h"
#include "formats/phrase.h"
#include "formats/printable.h"
#include "formats/tense_tables.h"

namespace odmiennik::formats {
namespace {

// What Markdown would read as its own, in a text that is none.
void appendPlain(Utf8Text& out, Utf8View text) {
  for (const char letter : text) {
    if (Utf8View("\\`*_{}[]<>#|~").find(letter) != Utf8View::npos) out.push_back('\\');
    out.push_back(letter);
  }
}

class MarkdownFormat final : public Format {
 public:
  void begin(Utf8Text&) override {}

  void append(Utf8Text& out, const Answer& answer) override {
    if (answer.isRefused) return;
    if (!isFirst_) out.push_back('\n');
    isFirst_ = false;
    const engine::Display& shown = answer.conjugation.shown;
    appendTitle(out, shown, dictionary::labelsOf(answer.conjugation.information));
    for (const TenseTable& table : tenseTablesOf(shown, answer.printed)) {
      if (!table.mood.empty()) out.append("\n## ").append(table.mood).append("\n");
      if (!table.rows.empty()) appendTable(out, shown, table);
    }
  }

 private:
  void appendTitle(Utf8Text& out, const engine::Display& shown,
                   const dictionary::VerbLabels& labels) {
    text_.clear();
    appendPrintable(text_, cellOf(shown, engine::slot::kInfinitive).form);
    out.append("# ");
    appendPlain(out, text_);
    out.append("\n\n- grupa: ").append(labels.group);
    out.append("\n- przechodni: ").append(labels.transitive);
    out.append("\n- nieprzechodni: ").append(labels.intransitive);
    out.append("\n- czasownik posiłkowy: ").append(labels.auxiliary).append("\n");
  }

  void appendTable(Utf8Text& out, const engine::Display& shown, const TenseTable& table) {
    out.append("\n|");
    for (const int tense : table.tenses)
      out.append(" ").append(engine::tenseAt(tense).name).append(" |");
    out.append("\n|");
    for (std::size_t i = 0; i < table.tenses.size(); ++i) out.append("---|");
    out.push_back('\n');
    for (const int row : table.rows) {
      out.push_back('|');
      for (const int tense : table.tenses) {
        text_.clear();
        appendPhrase(text_, shown, slotOf(tense, row));
        out.push_back(' ');
        appendPlain(out, text_);
        out.append(" |");
      }
      out.push_back('\n');
    }
  }

  Utf8Text text_;
  bool isFirst_ = true;
};

}  // namespace

std::unique_ptr<Format> makeMarkdownFormat(bool) { return std::make_unique<MarkdownFormat>(); }

}  // namespace odmiennik::formats
