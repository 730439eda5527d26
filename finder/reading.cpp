// SPDX-License-Identifier: GPL-3.0-or-later
// A reading put into words.
#include "finder/reading.h"

#include "dictionary/verb_index.h"
#include "engine/pronouns.h"
#include "engine/string_table.h"
#include "engine/verb_information.h"

namespace odmiennik::finder {
namespace {

namespace slot = engine::slot;

constexpr int kThirdPerson = 2;

// Whether a pronoun before `word` loses its vowel, word being a form of the reading's verb or of
// an auxiliary.
bool elides(const Reading& reading, std::string_view word) {
  engine::EngineFlags flags;
  engine::VerbInformation information;
  if (word.starts_with('h'))
    engine::applyRecord(dictionary::GeneralVerbIndex().record(reading.verb), flags, information);
  const auto variety = reading.isInNorm ? engine::Variety::norm : engine::Variety::system;
  return engine::elides(word, flags.hAspirate, variety);
}

std::string_view adverbOf(engine::Adverb adverb) {
  constexpr std::string_view kAdverbs[] = {"", "en ", "y "};
  return kAdverbs[static_cast<std::size_t>(adverb)];
}

// Puts "me ", "m'", "m'en " before `word`, as the person has it.
void insertReflexive(const Reading& reading, int person, std::string& word) {
  const std::string_view adverb = adverbOf(reading.adverb);
  const bool isElided = !adverb.empty() || elides(reading, word);
  const int first = isElided ? engine::text_id::kElidedReflexive : engine::text_id::kReflexive;
  word.insert(0, adverb);
  word.insert(0, engine::textOf(first + person));
}

void insertSubject(const Reading& reading, int person, std::string& word) {
  word.insert(0, engine::wholeSubject(person, elides(reading, word)));
}

void appendEnclitic(const Reading& reading, std::string& word) {
  if (reading.adverb == engine::Adverb::none) {
    word.append(engine::textOf(engine::text_id::kEnclitic + reading.slot - slot::kImperative));
    return;
  }
  constexpr std::string_view kPronouns[] = {"-t'", "-nous-", "-vous-"};
  const std::string_view adverb = adverbOf(reading.adverb);
  word.append(kPronouns[reading.slot - slot::kImperative])
      .append(adverb.substr(0, adverb.size() - 1));
}

std::string personalPhrase(const Reading& reading) {
  const int person = reading.slot % engine::kPersonCount;
  std::string phrase = reading.form;
  if (reading.isReflexive) insertReflexive(reading, person, phrase);
  insertSubject(reading, person, phrase);
  const bool isSubjunctive =
      reading.slot >= slot::kPresentSubjunctive && reading.slot < slot::kPresentConditional;
  if (isSubjunctive) phrase.insert(0, phrase.starts_with('i') ? "qu'" : "que ");
  return phrase;
}

}  // namespace

Utf8Text placeInWords(const Reading& reading) {
  constexpr Utf8View kAgreements[] = {"", "r. ż.", "r. m. l. mn.", "r. ż. l. mn."};
  const engine::Tense& tense = engine::tenseOf(reading.slot);
  Utf8Text words;
  words.append(tense.mood).append(" ").append(tense.name);
  const auto add = [&](Utf8View before, Utf8View note) {
    if (!note.empty()) words.append(before).append(note);
  };
  add(", ", engine::personOf(reading.slot));
  add("; ", kAgreements[static_cast<std::size_t>(reading.agreed)]);
  if (!reading.isInNorm) add("; ", "tylko w programie");
  if (!reading.isInSystem) add("; ", "tylko w normie");
  if (reading.isOwn) add("; ", "własny");
  return words;
}

Utf8View headingOf(Match match) {
  constexpr Utf8View kHeadings[] = {"", "z innymi akcentami:", "może:"};
  return kHeadings[static_cast<std::size_t>(match)];
}

std::string infinitiveOf(const Reading& reading) {
  std::string infinitive(reading.verb);
  if (reading.isReflexive) insertReflexive(reading, kThirdPerson, infinitive);
  return infinitive;
}

std::string phraseOf(const Reading& reading) {
  if (reading.slot < engine::kPersonalSlotCount) return personalPhrase(reading);
  std::string phrase = reading.form;
  if (!reading.isReflexive) return phrase;
  if (reading.slot < slot::kPastImperative)
    appendEnclitic(reading, phrase);
  else if (reading.slot >= slot::kInfinitive && reading.slot != slot::kPastParticiple)
    insertReflexive(reading, kThirdPerson, phrase);
  return phrase;
}

}  // namespace odmiennik::finder
