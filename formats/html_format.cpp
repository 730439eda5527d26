// SPDX-License-Identifier: GPL-3.0-or-later
// One HTML page of all verbs, for the screen and for paper: no script, nothing fetched.
#include <utility>

#include "dictionary/verb_labels.h"
#include "formats/format.h"
#include "formats/page_style.h"
#include "formats/phrase.h"
#include "formats/printable.h"
#include "formats/tense_tables.h"

namespace odmiennik::formats {
namespace {

void appendEscaped(Utf8Text& out, Utf8View text) {
  for (const char letter : text) switch (letter) {
      case '&':
        out.append("&amp;");
        break;
      case '<':
        out.append("&lt;");
        break;
      case '>':
        out.append("&gt;");
        break;
      case '"':
        out.append("&quot;");
        break;
      default:
        out.push_back(letter);
    }
}

class HtmlFormat final : public Format {
 public:
  void begin(Utf8Text& out) override {
    out.append(
        "<!DOCTYPE html>\n<html lang=\"pl\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
        "<title>Odmiana czasowników</title>\n<style>\n");
    out.append(kPageStyle);
    out.append("</style>\n</head>\n<body>\n");
  }

  void append(Utf8Text& out, const Answer& answer) override {
    if (answer.isRefused) return;
    const engine::Display& shown = answer.conjugation.shown;
    out.append("<section>\n<h1 lang=\"fr\">");
    appendFrench(out, [&](Utf8Text& text) {
      appendPrintable(text, cellOf(shown, engine::slot::kInfinitive).form);
    });
    out.append("</h1>\n");
    appendFacts(out, dictionary::labelsOf(answer.conjugation.information));
    for (const TenseTable& table : tenseTablesOf(shown, answer.printed)) {
      if (!table.mood.empty()) out.append("<h2 lang=\"fr\">").append(table.mood).append("</h2>\n");
      if (!table.rows.empty()) appendTable(out, shown, table);
    }
    out.append("</section>\n");
  }

  void end(Utf8Text& out) override { out.append("</body>\n</html>\n"); }

 private:
  static void appendFacts(Utf8Text& out, const dictionary::VerbLabels& labels) {
    const std::pair<Utf8View, Utf8View> facts[] = {{"grupa: ", labels.group},
                                                   {"przechodni: ", labels.transitive},
                                                   {"nieprzechodni: ", labels.intransitive},
                                                   {"czasownik posiłkowy: ", labels.auxiliary}};
    Utf8View before = "<p>";
    for (const auto& [name, value] : facts) {
      out.append(before).append(name);
      appendEscaped(out, value);
      before = " · ";
    }
    out.append("</p>\n");
  }

  void appendTable(Utf8Text& out, const engine::Display& shown, const TenseTable& table) {
    out.append("<table lang=\"fr\">\n<tr>");
    for (const int tense : table.tenses)
      out.append("<th scope=\"col\">").append(engine::tenseAt(tense).name).append("</th>");
    out.append("</tr>\n");
    for (const int row : table.rows) {
      out.append("<tr>");
      for (const int tense : table.tenses) {
        out.append("<td>");
        appendFrench(out, [&](Utf8Text& text) { appendPhrase(text, shown, slotOf(tense, row)); });
        out.append("</td>");
      }
      out.append("</tr>\n");
    }
    out.append("</table>\n");
  }

  template <typename Write>
  void appendFrench(Utf8Text& out, Write write) {
    text_.clear();
    write(text_);
    appendEscaped(out, text_);
  }

  Utf8Text text_;
};

}  // namespace

std::unique_ptr<Format> makeHtmlFormat(bool) { return std::make_unique<HtmlFormat>(); }

}  // namespace odmiennik::formats
