// SPDX-License-Identifier: GPL-3.0-or-later
// Comma-separated values after RFC 4180: a header, then 101 lines a verb, each ended by CR LF.
#include "engine/windows1252.h"
#include "formats/format.h"
#include "formats/phrase.h"
#include "formats/printable.h"
#include "formats/quoted_field.h"
#include "formats/text_layout.h"

namespace odmiennik::formats {
namespace {

// What a field cannot hold bare.
constexpr Utf8View kCsvMarks = ",\"";

class CsvFormat final : public Format {
 public:
  void begin(Utf8Text& out) override {
    out.append("infinitive,slot,mood,tense,person,pronoun,form,phrase\r\n");
  }

  void append(Utf8Text& out, const Answer& answer) override {
    if (answer.isRefused) return;
    const engine::Display& shown = answer.conjugation.shown;
    infinitive_.clear();
    appendPrintable(infinitive_, cellOf(shown, engine::slot::kInfinitive).form);
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      if (answer.printed.has(slot)) appendSlot(out, shown, slot);
  }

 private:
  void appendSlot(Utf8Text& out, const engine::Display& shown, int slot) {
    const engine::Tense& tense = engine::tenseOf(slot);
    appendField(out, infinitive_, kCsvMarks);
    out.append(",").append(decimal(slot));
    for (const Utf8View field : {tense.mood, tense.name, engine::personOf(slot)}) {
      out.push_back(',');
      appendField(out, field, kCsvMarks);
    }
    const auto position = static_cast<std::size_t>(slot);
    out.push_back(',');
    if (slot < engine::kPersonalSlotCount) engine::appendUtf8(out, shown.pronouns[position]);
    form_.clear();
    appendPrintable(form_, cellOf(shown, slot).form);
    phrase_.clear();
    appendPhrase(phrase_, shown, slot);
    out.push_back(',');
    appendField(out, form_, kCsvMarks);
    out.push_back(',');
    appendField(out, phrase_, kCsvMarks);
    out.append("\r\n");
  }

  Utf8Text infinitive_;
  Utf8Text form_;
  Utf8Text phrase_;
};

}  // namespace

std::unique_ptr<Format> makeCsvFormat(bool) { return std::make_unique<CsvFormat>(); }

}  // namespace odmiennik::formats
