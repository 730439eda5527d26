// SPDX-License-Identifier: GPL-3.0-or-later
// The finir and haïr models.
#include <gtest/gtest.h>

#include "tests/unit/groups/by_rule.h"

namespace odmiennik::groups {
namespace {

TEST(finir_model, finir) {
  const ByRule verb("finir");
  EXPECT_EQ(verb.result.model, "finir");
  EXPECT_EQ(verb.tense(0), "finis | finis | finit | finissons | finissez | finissent");
  EXPECT_EQ(verb.tense(6),
            "finissais | finissais | finissait | finissions | finissiez | finissaient");
  EXPECT_EQ(verb.tense(12), "finis | finis | finit | finîmes | finîtes | finirent");
  EXPECT_EQ(verb.tense(18), "finirai | finiras | finira | finirons | finirez | finiront");
  EXPECT_EQ(verb.tense(48), "finisse | finisses | finisse | finissions | finissiez | finissent");
  EXPECT_EQ(verb.tense(54), "finisse | finisses | finît | finissions | finissiez | finissent");
  EXPECT_EQ(verb.tense(72), "finirais | finirais | finirait | finirions | finiriez | finiraient");
  EXPECT_EQ(verb.tense(90), "finis | finissons | finissez");
  EXPECT_EQ(verb.slot(98), "finissant");
  EXPECT_EQ(verb.slot(99), "fini");
}

TEST(finir_model, serves_choisir_and_reussir) {
  EXPECT_EQ(ByRule("choisir").slot(3), "choisissons");
  EXPECT_EQ(ByRule("choisir").slot(99), "choisi");
  EXPECT_EQ(ByRule("réussir").slot(2), "réussit");
  EXPECT_EQ(ByRule("réussir").slot(99), "réussi");
}

TEST(finir_model, the_participle_takes_the_marker_with_etre) {
  EXPECT_EQ(ByRule("finir", engine::kEtre).slot(99), "fini(e)");
}

TEST(finir_model, takes_ir_with_a_diaeresis_and_cuts_two_letters) {
  const ByRule verb("amuïr");
  EXPECT_EQ(verb.result.model, "finir");
  EXPECT_EQ(verb.slot(0), "amuis");
  EXPECT_EQ(verb.slot(99), "amui");
}

TEST(finir_model, the_diaeresis_stays_in_infinitive_and_future_only) {
  const ByRule verb("ouïr");
  EXPECT_EQ(verb.slot(0), "ouis");
  EXPECT_EQ(verb.slot(12), "ouis");
  EXPECT_EQ(verb.slot(18), "ouïrai");
  EXPECT_EQ(verb.slot(72), "ouïrais");
  EXPECT_EQ(verb.slot(96), "ouïr");
}

TEST(hair_model, haimes_and_haites_keep_the_diaeresis_in_place_of_the_circumflex) {
  const ByRule verb("haïr");
  EXPECT_EQ(verb.result.model, "haïr");
  EXPECT_EQ(verb.tense(0), "hais | hais | hait | haïssons | haïssez | haïssent");
  EXPECT_EQ(verb.tense(12), "haïs | haïs | haït | haïmes | haïtes | haïrent");
  EXPECT_EQ(verb.tense(54), "haïsse | haïsses | haït | haïssions | haïssiez | haïssent");
}

TEST(hair_model, builds_the_other_tenses) {
  const ByRule verb("haïr");
  EXPECT_EQ(verb.slot(6), "haïssais");
  EXPECT_EQ(verb.slot(18), "haïrai");
  EXPECT_EQ(verb.slot(72), "haïrais");
  EXPECT_EQ(verb.slot(48), "haïsse");
  EXPECT_EQ(verb.tense(90), "hais | haïssons | haïssez");
  EXPECT_EQ(verb.slot(98), "haïssant");
  EXPECT_EQ(verb.slot(99), "haï");
}

TEST(hair_model, keeps_a_prefix) {
  const ByRule verb("s'entre-haïr", engine::kEtre);
  EXPECT_EQ(verb.result.model, "haïr");
  EXPECT_EQ(verb.slot(0), "s'entre-hais");
  EXPECT_EQ(verb.slot(99), "s'entre-haï(e)");
}

}  // namespace
}  // namespace odmiennik::groups
