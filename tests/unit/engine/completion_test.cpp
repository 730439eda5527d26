// SPDX-License-Identifier: GPL-3.0-or-later
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

TEST(completion, fills_every_placeholder) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  for (int slot = 0; slot < kSlotCount; ++slot) EXPECT_NE(forms[slot], "*") << slot;
}

TEST(completion, takes_the_imperfect_from_nous) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[6], "prenais");
  EXPECT_EQ(forms[11], "prenaient");
}

TEST(completion, drops_the_final_e_of_the_infinitive_in_the_future) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[18], "prendrai");
  forms = storedPrendre();
  forms[slot::kInfinitive] = "partir";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[18], "partirai");
}

TEST(completion, derives_the_conditional_from_the_completed_future) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[77], "prendraient");
}

TEST(completion, derives_the_subjunctive_from_the_completed_imperfect) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[48], "prenne");
  EXPECT_EQ(forms[51], "prenions");
  EXPECT_EQ(forms[52], "preniez");
}

TEST(completion, derives_the_imperfect_subjunctive_from_the_completed_past_historic) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[12], "prendis");
  EXPECT_EQ(forms[54], "prendisse");
  EXPECT_EQ(testing::utf8(forms[56]), "prendît");
}

TEST(completion, derives_imperative_and_present_participle) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[90], "prends");
  EXPECT_EQ(forms[91], "prenons");
  EXPECT_EQ(forms[98], "prenant");
}

TEST(completion, takes_a_endings_for_an_infinitive_in_er) {
  FormTable forms = storedPrendre();
  forms[slot::kInfinitive] = "parler";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[12], "parlai");
}

TEST(completion, a_text_in_slot_six_keeps_the_whole_imperfect) {
  FormTable forms = storedPrendre();
  forms[6] = "own";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[6], "own");
  for (int slot = 7; slot < 12; ++slot) EXPECT_EQ(forms[slot], "*") << slot;
}

TEST(completion, only_the_first_slot_of_a_tense_counts) {
  for (const int first : {6, 12, 18, 48, 54, 72}) {
    FormTable forms = storedPrendre();
    forms[first] = "own text";
    completeStoredVerb(forms, kAvoir);
    for (int slot = first + 1; slot < first + 6; ++slot) EXPECT_EQ(forms[slot], "*") << slot;
  }
}

TEST(completion, a_placeholder_in_the_first_slot_rewrites_the_whole_tense) {
  FormTable forms = storedPrendre();
  forms[7] = forms[8] = "own";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[7], "prenais");
  EXPECT_EQ(forms[8], "prenait");
}

TEST(completion, an_own_imperative_is_kept) {
  FormTable forms = storedPrendre();
  forms[90] = "own";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[90], "own");
  EXPECT_EQ(forms[91], "*");
}

TEST(completion, compound_slots_are_looked_at_one_by_one) {
  FormTable forms = storedPrendre();
  forms[24] = "own";
  forms[30] = "";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[24], "own");
  EXPECT_EQ(forms[25], "as pris");
  EXPECT_EQ(forms[30], "");
  EXPECT_EQ(forms[31], "avais pris");
}

TEST(completion, always_replaces_a_placeholder_in_slots_97_and_100) {
  FormTable forms = storedPrendre();
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[97], "avoir pris");
  EXPECT_EQ(forms[100], "ayant pris");
}

TEST(completion, keeps_a_real_text_in_slots_97_and_100) {
  FormTable forms = storedPrendre();
  forms[97] = "own infinitive";
  forms[100] = "own participle";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[97], "own infinitive");
  EXPECT_EQ(forms[100], "own participle");
}

TEST(completion, without_a_participle_the_placeholders_of_compound_tenses_stay) {
  FormTable forms = storedPrendre();
  forms[slot::kPastParticiple] = "";
  completeStoredVerb(forms, kAvoir);
  EXPECT_EQ(forms[24], "*");
  EXPECT_EQ(forms[97], "*");
}

TEST(completion, without_a_base_the_placeholder_stays) {
  FormTable forms = storedPrendre();
  forms[3] = forms[5] = forms[12] = forms[18] = "";
  completeStoredVerb(forms, kAvoir);
  for (const int slot : {6, 48, 54, 72, 98}) EXPECT_EQ(forms[slot], "*") << slot;
}

}  // namespace
}  // namespace odmiennik::engine
