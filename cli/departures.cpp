// SPDX-License-Identifier: GPL-3.0-or-later
// Comparison of the two varieties.
#include "cli/departures.h"

#include "engine/departure.h"
#include "formats/printable.h"

namespace odmiennik::cli {
namespace {

void appendLine(Utf8Text& out, std::string_view infinitive, int slot, std::string_view system,
                std::string_view norm) {
  const engine::Tense& tense = engine::tenseOf(slot);
  formats::appendPrintable(out, infinitive);
  out.append("\t").append(decimal(slot));
  for (const Utf8View field : {tense.mood, tense.name, engine::personOf(slot)})
    out.append("\t").append(field);
  for (const std::string_view phrase : {system, norm}) {
    out.push_back('\t');
    formats::appendPrintable(out, phrase);
  }
  out.push_back('\n');
}

}  // namespace

Departures::Departures(engine::UserVerbs& userVerbs, MessageLog& messages,
                       const formats::SlotChoice& slots)
    : norm_(userVerbs, messages, {.variety = engine::Variety::norm}),
      system_(userVerbs, messages, {.slots = slots}) {}

void Departures::begin(Utf8Text& out) {
  out.append("infinitive\tslot\tmood\ttense\tperson\tform\tnorm\n");
}

formats::Answer Departures::append(Utf8Text& out, const Question& question) {
  const formats::Answer inNorm = norm_.answer(question);
  const formats::Answer answer = system_.answer(question);
  if (answer.isRefused) return answer;
  const engine::Display& norm = inNorm.conjugation.shown;
  const engine::Display& system = answer.conjugation.shown;
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    if (!answer.printed.has(slot) || !engine::departs(system, norm, slot)) continue;
    engine::setPhrase(systemPhrase_, system, slot);
    engine::setPhrase(normPhrase_, norm, slot);
    appendLine(out, system.boxes[engine::slot::kInfinitive], slot, systemPhrase_, normPhrase_);
  }
  return answer;
}

}  // namespace odmiennik::cli
