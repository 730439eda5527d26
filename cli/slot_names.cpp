// SPDX-License-Identifier: GPL-3.0-or-later
// Names of tenses and persons.
#include "cli/slot_names.h"

#include <algorithm>

#include "engine/normalization.h"
#include "engine/windows1252.h"
#include "finder/letters.h"
#include "formats/tense_name.h"

namespace odmiennik::cli {
namespace {

using engine::kTenses;
using engine::Tense;

// A name without what makes no difference: " Passé-Composé" -> "passe compose". Nothing for what
// no name can be.
std::string plain(Utf8View name) {
  engine::FromUtf8 french = engine::fromUtf8(name);
  if (french.fault != engine::Utf8Fault::none) return {};
  engine::lowerCase(french.text);
  const finder::Folded folded(engine::trimmed(french.text));
  std::string text(folded.isTooLong() ? std::string_view{} : folded.text());
  std::ranges::replace(text, '-', ' ');
  return text;
}

bool isOfOneMood(const Tense& tense) {
  return std::ranges::count(kTenses, tense.name, &Tense::name) == 1;
}

bool isCalled(const Tense& tense, std::string_view name) {
  const std::string mood = plain(formats::moodName(tense));
  const std::string bare = plain(tense.name);
  const bool mayStandAlone = formats::isIndicative(tense) || isOfOneMood(tense);
  return name == mood || name == mood + " " + bare || (mayStandAlone && name == bare);
}

}  // namespace

bool addTense(Tenses& tenses, Utf8View name) {
  const std::string wanted = plain(name);
  bool isKnown = false;
  for (std::size_t i = 0; i < kTenses.size(); ++i) {
    if (!isCalled(kTenses[i], wanted)) continue;
    tenses.set(i);
    isKnown = true;
  }
  return isKnown;
}

bool addPerson(Persons& persons, Utf8View name) {
  const std::string wanted = plain(name);
  for (int person = 0; person < engine::kPersonCount; ++person) {
    if (wanted != plain(engine::personOf(person))) continue;
    persons.set(static_cast<std::size_t>(person));
    return true;
  }
  return false;
}

Utf8Text namesOfTenses() {
  Utf8Text names, moods;
  Utf8View mood;
  for (const Tense& tense : kTenses) {
    names.append(formats::tenseName(tense)).append(", ");
    if (tense.mood == mood) continue;
    moods.append(mood.empty() ? "" : ", ").append(formats::moodName(tense));
    mood = tense.mood;
  }
  return names + moods;
}

formats::SlotChoice slotsOf(const Tenses& tenses, const Persons& persons) {
  formats::SlotChoice slots;
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const auto tense = static_cast<std::size_t>(&engine::tenseOf(slot) - kTenses.data());
    Persons person;
    static_cast<void>(addPerson(person, engine::personOf(slot)));
    const bool isOfTense = tenses.none() || tenses[tense];
    const bool isOfPerson = persons.none() || (persons & person).any();
    if (!isOfTense || !isOfPerson) slots.leaveOut(slot);
  }
  return slots;
}

}  // namespace odmiennik::cli
