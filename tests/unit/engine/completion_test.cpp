// Completion of stored verbs: the order, and that only the first slot of a tense counts.
#include "engine/completion.h"

#include <gtest/gtest.h>

#include "engine/flags.h"
#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::french;

// "prendre" as a stored verb: the present and the participle, "*" everywhere else.
FormTable storedPrendre() {
  FormTable forms;
  for (int slot = 6; slot < kSlotCount; ++slot) forms[slot] = "*";
  const std::string_view present[] = {"prends", "prends", "prend", "prenons", "prenez", "prennent"};
  for (int person = 0; person < 6; ++person) forms[person] = present[person];
  forms[slot::kInfinitive] = "prendre";
  forms[slot::kPastParticiple] = "pris";
  return forms;
}

TEST(Completion, FillsEveryPlaceholder) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  for (int slot = 0; slot < kSlotCount; ++slot) EXPECT_NE(forms[slot], "*") << slot;
}

TEST(Completion, TakesTheImperfectFromNous) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[6], "prenais");
  EXPECT_EQ(forms[11], "prenaient");
}

TEST(Completion, DropsTheFinalEOfTheInfinitiveInTheFuture) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[18], "prendrai");
  forms = storedPrendre();
  forms[slot::kInfinitive] = "partir";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[18], "partirai");
}

TEST(Completion, DerivesTheConditionalFromTheCompletedFuture) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[77], "prendraient");
}

TEST(Completion, DerivesTheSubjunctiveFromTheCompletedImperfect) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[48], "prenne");
  EXPECT_EQ(forms[51], "prenions");
  EXPECT_EQ(forms[52], "preniez");
}

TEST(Completion, DerivesTheImperfectSubjunctiveFromTheCompletedPastHistoric) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[12], "prendis");
  EXPECT_EQ(forms[54], "prendisse");
  EXPECT_EQ(toUtf8(forms[56]), "prendît");
}

TEST(Completion, DerivesImperativeAndPresentParticiple) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[90], "prends");
  EXPECT_EQ(forms[91], "prenons");
  EXPECT_EQ(forms[98], "prenant");
}

TEST(Completion, TakesAEndingsForAnInfinitiveInEr) {
  FormTable forms = storedPrendre();
  forms[slot::kInfinitive] = "parler";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[12], "parlai");
}

TEST(Completion, ATextInSlotSixKeepsTheWholeImperfect) {
  FormTable forms = storedPrendre();
  forms[6] = "own";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[6], "own");
  for (int slot = 7; slot < 12; ++slot) EXPECT_EQ(forms[slot], "*") << slot;
}

TEST(Completion, OnlyTheFirstSlotOfATenseCounts) {
  for (const int first : {6, 12, 18, 48, 54, 72}) {
    FormTable forms = storedPrendre();
    forms[first] = "own text";
    completeStoredVerb(forms, kAvoir);
    for (int slot = first + 1; slot < first + 6; ++slot) EXPECT_EQ(forms[slot], "*") << slot;
  }
}

TEST(Completion, APlaceholderInTheFirstSlotRewritesTheWholeTense) {
  FormTable forms = storedPrendre();
  forms[7] = forms[8] = "own";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[7], "prenais");
  EXPECT_EQ(forms[8], "prenait");
}

TEST(Completion, AnOwnImperativeIsKept) {
  FormTable forms = storedPrendre();
  forms[90] = "own";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[90], "own");
  EXPECT_EQ(forms[91], "*");
}

TEST(Completion, CompoundSlotsAreLookedAtOneByOne) {
  FormTable forms = storedPrendre();
  forms[24] = "own";
  forms[30] = "";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[24], "own");
  EXPECT_EQ(forms[25], "as pris");
  EXPECT_EQ(forms[30], "");
  EXPECT_EQ(forms[31], "avais pris");
}

TEST(Completion, AlwaysReplacesAPlaceholderInSlots97And100) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[97], "avoir pris");
  EXPECT_EQ(forms[100], "ayant pris");
}

TEST(Completion, KeepsARealTextInSlots97And100) {
  FormTable forms = storedPrendre();
  forms[97] = "own infinitive";
  forms[100] = "own participle";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[97], "own infinitive");
  EXPECT_EQ(forms[100], "own participle");
}

TEST(Completion, WithoutAParticipleThePlaceholdersOfCompoundTensesStay) {
  FormTable forms = storedPrendre();
  forms[slot::kPastParticiple] = "";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[24], "*");
  EXPECT_EQ(forms[97], "*");
}

TEST(Completion, WithoutABaseThePlaceholderStays) {
  FormTable forms = storedPrendre();
  forms[3] = forms[5] = forms[12] = forms[18] = "";
  completeStoredVerb(forms, kAvoir);
  for (const int slot : {6, 48, 54, 72, 98}) EXPECT_EQ(forms[slot], "*") << slot;
}

}  // namespace
}  // namespace odmiennik::engine
