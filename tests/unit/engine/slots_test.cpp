// SPDX-License-Identifier: GPL-3.0-or-later
// The slot map: the central contract of the system.
#include "engine/slots.h"

#include <gtest/gtest.h>

namespace odmiennik::engine {
namespace {

struct Row {
  int first, last;
  Utf8View mood, tense;
};

constexpr Row kRows[] = {
    {0, 5, "Indicatif", "présent"},
    {6, 11, "Indicatif", "imparfait"},
    {12, 17, "Indicatif", "passé simple"},
    {18, 23, "Indicatif", "futur simple"},
    {24, 29, "Indicatif", "passé composé"},
    {30, 35, "Indicatif", "plus-que-parfait"},
    {36, 41, "Indicatif", "passé antérieur"},
    {42, 47, "Indicatif", "futur antérieur"},
    {48, 53, "Subjonctif", "présent"},
    {54, 59, "Subjonctif", "imparfait"},
    {60, 65, "Subjonctif", "passé"},
    {66, 71, "Subjonctif", "plus-que-parfait"},
    {72, 77, "Conditionnel", "présent"},
    {78, 83, "Conditionnel", "passé 1re forme"},
    {84, 89, "Conditionnel", "passé 2e forme"},
    {90, 92, "Impératif", "présent"},
    {93, 95, "Impératif", "passé"},
    {96, 96, "Infinitif", "présent"},
    {97, 97, "Infinitif", "passé"},
    {98, 98, "Participe", "présent"},
    {99, 99, "Participe", "passé"},
    {100, 100, "Participe", "passé composé"},
};

TEST(slots, every_slot_has_its_mood_and_tense) {
  for (const Row& row : kRows)
    for (int slot = row.first; slot <= row.last; ++slot) {
      EXPECT_EQ(tenseOf(slot).mood, row.mood) << slot;
      EXPECT_EQ(tenseOf(slot).name, row.tense) << slot;
      EXPECT_EQ(tenseOf(slot).firstSlot, row.first) << slot;
    }
}

TEST(slots, there_are_101) { EXPECT_EQ(kSlotCount, 101); }

TEST(slots, persons_come_in_the_order_je_tu_il_nous_vous_ils) {
  const Utf8View kPersons[] = {"je", "tu", "il", "nous", "vous", "ils"};
  for (int slot = 0; slot < 90; ++slot) EXPECT_EQ(personOf(slot), kPersons[slot % 6]) << slot;
}

TEST(slots, the_imperative_has_tu_nous_vous) {
  const Utf8View kPersons[] = {"tu", "nous", "vous"};
  for (int slot = 90; slot < 96; ++slot) EXPECT_EQ(personOf(slot), kPersons[(slot - 90) % 3]);
}

TEST(slots, infinitives_and_participles_have_no_person) {
  for (int slot = 96; slot <= 100; ++slot) EXPECT_EQ(personOf(slot), "") << slot;
}

}  // namespace
}  // namespace odmiennik::engine
