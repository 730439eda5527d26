// SPDX-License-Identifier: GPL-3.0-or-later
// Tab-separated values: a header, then 101 lines a verb.
#include "engine/windows1252.h"
#include "formats/format.h"
#include "formats/phrase.h"
#include "formats/printable.h"

namespace odmiennik::formats {
namespace {

// What does not exist is an empty field, not the window's " -- ".
std::string_view formOf(std::string_view box) {
  return box == engine::kShownMissing ? std::string_view{} : box;
}

class TsvFormat final : public Format {
 public:
  void begin(Utf8Text& out) override {
    out.append("infinitive\tslot\tmood\ttense\tperson\tpronoun\tform\tphrase\n");
  }
  void append(Utf8Text& out, const Answer& answer) override {
    if (answer.isRefused) return;
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      if (answer.printed.has(slot)) appendSlot(out, answer, slot);
  }

 private:
  static void appendSlot(Utf8Text& out, const Answer& answer, int slot) {
    const engine::Display& shown = answer.conjugation.shown;
    const auto position = static_cast<std::size_t>(slot);
    const engine::Tense& tense = engine::tenseOf(slot);
    appendPrintable(out, formOf(shown.boxes[engine::slot::kInfinitive]));
    out.append("\t").append(decimal(slot));
    for (const Utf8View field : {tense.mood, tense.name, engine::personOf(slot)})
      out.append("\t").append(field);
    out.push_back('\t');
    if (slot < engine::kPersonalSlotCount) engine::appendUtf8(out, shown.pronouns[position]);
    out.push_back('\t');
    appendPrintable(out, formOf(shown.boxes[position]));
    out.push_back('\t');
    appendPhrase(out, shown, slot);
    out.push_back('\n');
  }
};

}  // namespace

std::unique_ptr<Format> makeTsvFormat(bool) { return std::make_unique<TsvFormat>(); }

}  // namespace odmiennik::formats
