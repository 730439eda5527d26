// SPDX-License-Identifier: GPL-3.0-or-later
// Tab-separated values: a header, then 101 lines a verb.
#include <array>

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

// What a line says of its slot: "\t0\tindicatif\tprésent\tje\t".
Utf8Text fieldsOf(int slot) {
  const engine::Tense& tense = engine::tenseOf(slot);
  Utf8Text fields = "\t" + decimal(slot);
  for (const Utf8View field : {tense.mood, tense.name, engine::personOf(slot)})
    fields.append("\t").append(field);
  return fields.append("\t");
}

class TsvFormat final : public Format {
 public:
  TsvFormat() {
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      slots_[static_cast<std::size_t>(slot)] = fieldsOf(slot);
  }
  void begin(Utf8Text& out) override {
    out.append("infinitive\tslot\tmood\ttense\tperson\tpronoun\tform\tphrase\n");
  }
  void append(Utf8Text& out, const Answer& answer) override {
    if (answer.isRefused) return;
    infinitive_.clear();
    appendPrintable(infinitive_, formOf(answer.conjugation.shown.boxes[engine::slot::kInfinitive]));
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      if (answer.printed.has(slot)) appendSlot(out, answer, slot);
  }

 private:
  void appendSlot(Utf8Text& out, const Answer& answer, int slot) const {
    const engine::Display& shown = answer.conjugation.shown;
    const auto position = static_cast<std::size_t>(slot);
    out.append(infinitive_).append(slots_[position]);
    if (slot < engine::kPersonalSlotCount) engine::appendUtf8(out, shown.pronouns[position]);
    out.push_back('\t');
    appendPrintable(out, formOf(shown.boxes[position]));
    out.push_back('\t');
    appendPhrase(out, shown, slot);
    out.push_back('\n');
  }

  // What stands at the beginning of a verb's 101 lines, and what is the same for every verb: made
  // once, they take over a quarter of the time away.
  Utf8Text infinitive_;
  std::array<Utf8Text, engine::kSlotCount> slots_;
};

}  // namespace

std::unique_ptr<Format> makeTsvFormat(bool) { return std::make_unique<TsvFormat>(); }

}  // namespace odmiennik::formats
