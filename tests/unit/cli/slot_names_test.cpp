// SPDX-License-Identifier: GPL-3.0-or-later
// Tenses and persons as a user names them.
#include "cli/slot_names.h"

#include <gtest/gtest.h>

#include "formats/tense_name.h"

namespace odmiennik::cli {
namespace {

namespace tense = engine::tense;

// The tenses of a name, by their positions.
std::vector<int> tensesCalled(Utf8View name) {
  Tenses tenses;
  const bool isKnown = addTense(tenses, name);
  std::vector<int> positions;
  for (int i = 0; i < static_cast<int>(tenses.size()); ++i)
    if (tenses[static_cast<std::size_t>(i)]) positions.push_back(i);
  EXPECT_EQ(isKnown, !positions.empty()) << name;
  return positions;
}

using Positions = std::vector<int>;

TEST(tense_names, mean_the_indicative_where_no_mood_stands_before_them) {
  EXPECT_EQ(tensesCalled("présent"), Positions{tense::kPresent});
  EXPECT_EQ(tensesCalled("passé composé"), Positions{tense::kPerfect});
  EXPECT_EQ(tensesCalled("indicatif imparfait"), Positions{tense::kImperfect});
}

TEST(tense_names, of_another_mood_have_it_before_them) {
  EXPECT_EQ(tensesCalled("subjonctif présent"), Positions{tense::kPresentSubjunctive});
  EXPECT_EQ(tensesCalled("participe passé composé"), Positions{tense::kCompoundParticiple});
  EXPECT_EQ(tensesCalled("passé"), Positions{});
}

TEST(tense_names, may_lack_it_where_no_other_mood_has_such_a_tense) {
  EXPECT_EQ(tensesCalled("passé 2e forme"), Positions{tense::kPastConditional2});
}

TEST(tense_names, are_read_without_regard_to_case_accents_hyphens_and_blanks_around) {
  for (const Utf8View name : {"  Plus-Que-Parfait ", "plus que parfait", "PLUS-QUE-PARFAIT"})
    EXPECT_EQ(tensesCalled(name), Positions{tense::kPluperfect}) << name;
  EXPECT_EQ(tensesCalled("Passe-compose"), Positions{tense::kPerfect});
  EXPECT_EQ(tensesCalled("subjonctif-passe\u0301"), Positions{tense::kPerfectSubjunctive});
}

TEST(tense_names, of_a_mood_are_all_its_tenses) {
  EXPECT_EQ(tensesCalled("impératif"), (Positions{tense::kImperative, tense::kPastImperative}));
  EXPECT_EQ(tensesCalled("indicatif").size(), 8U);
}

TEST(tense_names, that_are_none_are_refused) {
  for (const Utf8View name :
       {"", " ", "imparfit", "présent subjonctif", "łapać", "\xFF", "présent,imparfait", "nous"})
    EXPECT_EQ(tensesCalled(name), Positions{}) << name;
}

TEST(tense_names, are_all_told_and_each_is_taken) {
  const Utf8Text names = namesOfTenses();
  EXPECT_TRUE(names.starts_with("présent, imparfait, passé simple, "));
  EXPECT_TRUE(names.ends_with(
      ", participe passé composé, indicatif, subjonctif, conditionnel, impératif, infinitif, "
      "participe"));
  for (const engine::Tense& row : engine::kTenses) {
    EXPECT_NE(names.find(formats::tenseName(row)), Utf8Text::npos);
    EXPECT_EQ(tensesCalled(formats::tenseName(row)),
              Positions{static_cast<int>(&row - engine::kTenses.data())});
  }
}

TEST(person_names, are_those_of_the_table) {
  Persons persons;
  EXPECT_TRUE(addPerson(persons, "nous") && addPerson(persons, " JE "));
  EXPECT_EQ(persons, Persons(0b001001));
  EXPECT_FALSE(addPerson(persons, "ns") || addPerson(persons, "") || addPerson(persons, "1s"));
}

TEST(slots_of, none_named_are_all) { EXPECT_TRUE(slotsOf({}, {}).hasAll()); }

TEST(slots_of, a_person_are_its_forms_alone) {
  Persons persons;
  ASSERT_TRUE(addPerson(persons, "nous"));
  const formats::SlotChoice slots = slotsOf({}, persons);
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    EXPECT_EQ(slots.has(slot), engine::personOf(slot) == Utf8View("nous")) << slot;
}

TEST(slots_of, a_tense_and_a_person_are_those_that_have_both) {
  Tenses tenses;
  Persons persons;
  ASSERT_TRUE(addTense(tenses, "impératif présent") && addPerson(persons, "vous"));
  const formats::SlotChoice slots = slotsOf(tenses, persons);
  EXPECT_TRUE(slots.has(92));
  EXPECT_FALSE(slots.has(91) || slots.has(95) || slots.has(4));
}

TEST(slots_of, a_person_that_the_tense_lacks_are_none) {
  Tenses tenses;
  Persons persons;
  ASSERT_TRUE(addTense(tenses, "impératif") && addPerson(persons, "je"));
  EXPECT_TRUE(slotsOf(tenses, persons).isEmpty());
}

}  // namespace
}  // namespace odmiennik::cli
