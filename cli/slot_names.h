// SPDX-License-Identifier: GPL-3.0-or-later
// Tenses and persons as a user names them.
#pragma once

#include <bitset>

#include "engine/slots.h"
#include "engine/utf8.h"
#include "formats/slot_choice.h"

namespace odmiennik::cli {

using Tenses = std::bitset<engine::kTenses.size()>;
using Persons = std::bitset<engine::kPersonCount>;

// Adds the tense of that name, or all tenses of a mood; false for any other name. Letter case,
// accents, blanks around the name and hyphens in it make no difference. A tense of the indicative,
// and one that no other mood has, may stand without its mood: "imparfait", "passé 1re forme",
// "subjonctif présent", "participe".
[[nodiscard]] bool addTense(Tenses& tenses, Utf8View name);

// The same for a person: "je" … "ils".
[[nodiscard]] bool addPerson(Persons& persons, Utf8View name);

// All names that addTense() takes, moods last: "présent, imparfait, …, participe".
[[nodiscard]] Utf8Text namesOfTenses();

// The slots of these tenses and persons; of all where none is named. Forms without a person are
// those of no person.
[[nodiscard]] formats::SlotChoice slotsOf(const Tenses& tenses, const Persons& persons);

}  // namespace odmiennik::cli
