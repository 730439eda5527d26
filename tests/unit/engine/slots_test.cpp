// The slot map: the central contract of the system.
#include "engine/slots.h"

#include <gtest/gtest.h>

namespace odmiennik::engine {
namespace {

struct Row {
  int first, last;
  std::string_view mood, tense;
};

constexpr Row kRows[] = {
    {0, 5, "INDICATIF", "Présent"},
    {6, 11, "INDICATIF", "Imparfait"},
    {12, 17, "INDICATIF", "Passé simple"},
    {18, 23, "INDICATIF", "Futur simple"},
    {24, 29, "INDICATIF", "Passé composé"},
    {30, 35, "INDICATIF", "Plus-que-parfait"},
    {36, 41, "INDICATIF", "Passé antérieur"},
    {42, 47, "INDICATIF", "Futur antérieur"},
    {48, 53, "SUBJONCTIF", "Présent"},
    {54, 59, "SUBJONCTIF", "Imparfait"},
    {60, 65, "SUBJONCTIF", "Passé"},
    {66, 71, "SUBJONCTIF", "Plus-que-parfait"},
    {72, 77, "CONDITIONEL", "Présent"},
    {78, 83, "CONDITIONEL", "Passé 1-er forme"},
    {84, 89, "CONDITIONEL", "Passé 2-e forme"},
    {90, 92, "IMPÉRATIF", "Présent"},
    {93, 95, "IMPÉRATIF", "Passé"},
    {96, 96, "INFINITIF", "Présent"},
    {97, 97, "INFINITIF", "Passé"},
    {98, 98, "PARTICIPE", "Présent"},
    {99, 99, "PARTICIPE", "Passé"},
    {100, 100, "PARTICIPE", "Passé composé"},
};

TEST(Slots, EverySlotHasItsMoodAndTense) {
  for (const Row& row : kRows)
    for (int slot = row.first; slot <= row.last; ++slot) {
      EXPECT_EQ(tenseOf(slot).moodCaption, row.mood) << slot;
      EXPECT_EQ(tenseOf(slot).tenseCaption, row.tense) << slot;
      EXPECT_EQ(tenseOf(slot).firstSlot, row.first) << slot;
    }
}

TEST(Slots, ThereAre101) { EXPECT_EQ(kSlotCount, 101); }

TEST(Slots, TheMoodIsSpelledCONDITIONELWithOneN) {
  EXPECT_EQ(tenseOf(72).moodCaption, "CONDITIONEL");
}

TEST(Slots, TheCaptionOfTheFirstPastConditionalIsPasse1ErForme) {
  EXPECT_EQ(tenseOf(78).tenseCaption, "Passé 1-er forme");
  EXPECT_EQ(tenseOf(84).tenseCaption, "Passé 2-e forme");
}

TEST(Slots, PersonsComeInTheOrderJeTuIlNousVousIls) {
  const std::string_view kPersons[] = {"je", "tu", "il", "nous", "vous", "ils"};
  for (int slot = 0; slot < 90; ++slot) EXPECT_EQ(personOf(slot), kPersons[slot % 6]) << slot;
}

TEST(Slots, TheImperativeHasTuNousVous) {
  const std::string_view kPersons[] = {"tu", "nous", "vous"};
  for (int slot = 90; slot < 96; ++slot) EXPECT_EQ(personOf(slot), kPersons[(slot - 90) % 3]);
}

TEST(Slots, InfinitivesAndParticiplesHaveNoPerson) {
  for (int slot = 96; slot <= 100; ++slot) EXPECT_EQ(personOf(slot), "") << slot;
}

}  // namespace
}  // namespace odmiennik::engine
