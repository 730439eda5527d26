// SPDX-License-Identifier: GPL-3.0-or-later
// Cards for Anki, as it imports text: front "manger, imparfait, nous", back the phrase, tags.
#include "dictionary/verb_labels.h"
#include "formats/format.h"
#include "formats/phrase.h"
#include "formats/printable.h"
#include "formats/quoted_field.h"
#include "formats/tense_name.h"
#include "formats/text_layout.h"

namespace odmiennik::formats {
namespace {

// A blank would begin another tag: "passé composé" -> "passé-composé".
void appendTag(Utf8Text& out, Utf8View text) {
  for (const char letter : text) out.push_back(letter == ' ' ? '-' : letter);
}

// At the start of a field a quotation mark would begin a quoted one, at the start of a line "#" a
// comment.
constexpr Utf8View kAnkiMarks = "\"#";

class AnkiFormat final : public Format {
 public:
  void begin(Utf8Text& out) override {
    out.append("#separator:tab\n#html:false\n#columns:Front\tBack\tTags\n#tags column:3\n");
  }

  void append(Utf8Text& out, const Answer& answer) override {
    if (answer.isRefused) return;
    for (int slot = 0; slot < engine::kSlotCount; ++slot) {
      const bool isAskedWith = slot == engine::slot::kInfinitive;
      if (answer.printed.has(slot) && !isAskedWith) appendCard(out, answer, slot);
    }
  }

 private:
  void appendCard(Utf8Text& out, const Answer& answer, int slot) {
    const engine::Display& shown = answer.conjugation.shown;
    if (cellOf(shown, slot).isMissing()) return;
    const engine::Tense& tense = engine::tenseOf(slot);
    front_.clear();
    appendPrintable(front_, cellOf(shown, engine::slot::kInfinitive).form);
    front_.append(", ").append(tenseName(tense));
    if (const Utf8View person = engine::personOf(slot); !person.empty())
      front_.append(", ").append(person);
    appendField(out, front_, kAnkiMarks);
    out.push_back('\t');
    back_.clear();
    appendPhrase(back_, shown, slot);
    appendField(out, back_, kAnkiMarks);
    out.append("\todmiennik::");
    appendTag(out, tense.mood);
    out.append("::");
    appendTag(out, tense.name);
    out.append(" odmiennik::grupa::");
    appendTag(out, dictionary::labelsOf(answer.conjugation.information).group);
    out.push_back('\n');
  }

  Utf8Text front_;
  Utf8Text back_;
};

}  // namespace

std::unique_ptr<Format> makeAnkiFormat(bool) { return std::make_unique<AnkiFormat>(); }

}  // namespace odmiennik::formats
