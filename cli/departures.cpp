// SPDX-License-Identifier: GPL-3.0-or-later
// Comparison of the two varieties.
#include "cli/departures.h"

#include "cli/format.h"

namespace odmiennik::cli {
namespace {

// "j'ai parlé", "ils ont parlé", "parlé": the form with its pronoun.
void setPhrase(std::string& phrase, const engine::Display& shown, int slot) {
  const auto position = static_cast<std::size_t>(slot);
  phrase.clear();
  if (shown.boxes[position] == engine::kShownMissing) return;
  if (slot < engine::kPersonalSlotCount) {
    phrase.append(shown.pronouns[position]);
    if (!phrase.ends_with('\'')) phrase.push_back(' ');
  }
  phrase.append(shown.boxes[position]);
}

void appendLine(Utf8Text& out, std::string_view infinitive, int slot, std::string_view system,
                std::string_view norm) {
  const engine::Tense& tense = engine::tenseOf(slot);
  appendPrintable(out, infinitive);
  out.append("\t").append(decimal(slot));
  for (const Utf8View field : {tense.mood, tense.name, engine::personOf(slot)})
    out.append("\t").append(field);
  for (const std::string_view phrase : {system, norm}) {
    out.push_back('\t');
    appendPrintable(out, phrase);
  }
  out.push_back('\n');
}

}  // namespace

Departures::Departures(engine::UserVerbs& userVerbs, MessageLog& messages)
    : norm_(userVerbs, messages, {.variety = engine::Variety::norm}),
      system_(userVerbs, messages, {}) {}

void Departures::begin(Utf8Text& out) {
  out.append("infinitive\tslot\tmood\ttense\tperson\tform\tnorm\n");
}

Answer Departures::append(Utf8Text& out, const Question& question) {
  const Answer inNorm = norm_.answer(question);
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    setPhrase(phrases_[static_cast<std::size_t>(slot)], inNorm.conjugation.shown, slot);
  const Answer answer = system_.answer(question);
  if (answer.isRefused) return answer;
  const engine::Display& shown = answer.conjugation.shown;
  std::string phrase;
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    setPhrase(phrase, shown, slot);
    const std::string& norm = phrases_[static_cast<std::size_t>(slot)];
    if (phrase != norm) appendLine(out, shown.boxes[engine::slot::kInfinitive], slot, phrase, norm);
  }
  return answer;
}

}  // namespace odmiennik::cli
