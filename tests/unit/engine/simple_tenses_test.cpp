// SPDX-License-Identifier: GPL-3.0-or-later
// The builders of the simple tenses.
#include "engine/simple_tenses.h"

#include <gtest/gtest.h>

#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::french;

FormTable tableWith(std::initializer_list<std::pair<int, std::string_view>> slots) {
  FormTable forms;
  for (const auto& [slot, text] : slots) forms[slot] = french(text);
  return forms;
}

std::string row(const FormTable& forms, int first, int count = 6) {
  std::string texts;
  for (int i = 0; i < count; ++i)
    texts.append(i == 0 ? "" : " | ").append(testing::utf8(forms[first + i]));
  return texts;
}

TEST(simple_tenses, the_imperfect_is_stem_and_endings) {
  FormTable forms;
  buildImperfect(forms, "parl");
  EXPECT_EQ(row(forms, 6), "parlais | parlais | parlait | parlions | parliez | parlaient");
}

TEST(simple_tenses, the_future_is_stem_and_endings) {
  FormTable forms;
  buildFuture(forms, "parler");
  EXPECT_EQ(row(forms, 18), "parlerai | parleras | parlera | parlerons | parlerez | parleront");
}

TEST(simple_tenses, a_builder_writes_only_its_own_slots) {
  FormTable forms;
  buildImperfect(forms, "x");
  buildFuture(forms, "x");
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_EQ(forms[slot].empty(), slot < 6 || slot >= 24 || (slot >= 12 && slot < 18)) << slot;
}

TEST(simple_tenses, the_imperative_copies_nous_and_vous_and_drops_the_s_of_es) {
  FormTable forms = tableWith({{1, "parles"}, {3, "parlons"}, {4, "parlez"}});
  buildImperative(forms);
  EXPECT_EQ(row(forms, 90, 3), "parle | parlons | parlez");
}

TEST(simple_tenses, the_imperative_of_vas_is_vas) {
  FormTable forms = tableWith({{1, "vas"}, {3, "allons"}, {4, "allez"}});
  buildImperative(forms);
  EXPECT_EQ(row(forms, 90, 3), "vas | allons | allez");
}

TEST(simple_tenses, the_imperative_drops_the_s_also_behind_e_diaeresis_and_acute_e) {
  FormTable forms = tableWith({{1, "arguës"}});
  buildImperative(forms);
  EXPECT_EQ(testing::utf8(forms[90]), "arguë");
  forms[1] = french("crés");
  buildImperative(forms);
  EXPECT_EQ(testing::utf8(forms[90]), "cré");
}

TEST(simple_tenses, the_imperative_keeps_other_final_letters) {
  for (const std::string_view tu : {"finis", "prends", "dors", "vèts", "èx", "sème", "è", "vêts"}) {
    FormTable forms = tableWith({{1, tu}});
    buildImperative(forms);
    EXPECT_EQ(testing::utf8(forms[90]), tu);
  }
}

TEST(simple_tenses, a_grave_or_circumflex_e_keeps_its_s) {
  for (const std::string_view tu : {"xès", "xês"}) {
    FormTable forms = tableWith({{1, tu}});
    buildImperative(forms);
    EXPECT_EQ(testing::utf8(forms[90]), tu);
  }
}

TEST(simple_tenses, the_present_subjunctive_follows_ils) {
  FormTable forms = tableWith({{5, "prennent"}, {9, "prenions"}, {10, "preniez"}});
  buildPresentSubjunctive(forms);
  EXPECT_EQ(row(forms, 48), "prenne | prennes | prenne | prenions | preniez | prennent");
}

TEST(simple_tenses, the_present_subjunctive_copies_an_irregular_imperfect) {
  FormTable forms = tableWith({{5, "aillent"}, {9, "irrégulions"}, {10, "irréguliez"}});
  buildPresentSubjunctive(forms);
  EXPECT_EQ(testing::utf8(forms[51]), "irrégulions");
  EXPECT_EQ(testing::utf8(forms[52]), "irréguliez");
}

TEST(simple_tenses, the_present_subjunctive_treats_double_forms_variant_by_variant) {
  FormTable forms = tableWith({{5, "payent/paient"}, {9, "payions"}, {10, "payiez"}});
  buildPresentSubjunctive(forms);
  EXPECT_EQ(row(forms, 48),
            "paye/paie | payes/paies | paye/paie | payions | payiez | payent/paient");
}

TEST(simple_tenses, the_conditional_follows_the_future) {
  FormTable forms = tableWith({{18, "parlerai"}});
  buildConditional(forms);
  EXPECT_EQ(row(forms, 72),
            "parlerais | parlerais | parlerait | parlerions | parleriez | parleraient");
}

TEST(simple_tenses, the_conditional_treats_double_forms_variant_by_variant) {
  FormTable forms = tableWith({{18, "payerai/paierai"}});
  buildConditional(forms);
  EXPECT_EQ(row(forms, 72),
            "payerais/paierais | payerais/paierais | payerait/paierait | payerions/paierions | "
            "payeriez/paieriez | payeraient/paieraient");
}

TEST(simple_tenses, an_empty_future_leaves_the_conditional_as_it_was) {
  FormTable forms = tableWith({{72, "*"}, {73, "kept"}});
  buildConditional(forms);
  EXPECT_EQ(row(forms, 72), "* | kept |  |  |  | ");
}

TEST(simple_tenses, the_past_historic_takes_a_endings_for_an_infinitive_in_er) {
  FormTable forms = tableWith({{96, "parler"}});
  buildPastHistoric(forms);
  EXPECT_EQ(row(forms, 12), "parlai | parlas | parla | parlâmes | parlâtes | parlèrent");
}

TEST(simple_tenses, the_past_historic_takes_i_endings_for_any_other_infinitive) {
  FormTable forms = tableWith({{96, "rendre"}});
  buildPastHistoric(forms);
  EXPECT_EQ(row(forms, 12), "rendis | rendis | rendit | rendîmes | rendîtes | rendirent");
}

TEST(simple_tenses, the_past_historic_takes_the_endings_and_base_that_it_is_given) {
  FormTable forms = tableWith({{96, "parler"}});
  buildPastHistoric(forms, PastEndings::u, "conn");
  EXPECT_EQ(row(forms, 12), "connus | connus | connut | connûmes | connûtes | connurent");
}

TEST(simple_tenses, a_past_historic_with_endings_only_takes_the_infinitive_less_two_letters) {
  FormTable forms = tableWith({{96, "courir"}});
  buildPastHistoric(forms, PastEndings::u);
  EXPECT_EQ(row(forms, 12), "courus | courus | courut | courûmes | courûtes | coururent");
}

TEST(simple_tenses, an_empty_base_is_a_base) {
  FormTable forms = tableWith({{96, "croire"}});
  buildPastHistoric(forms, PastEndings::u, "");
  EXPECT_EQ(row(forms, 12), "us | us | ut | ûmes | ûtes | urent");
}

TEST(simple_tenses, treats_an_infinitive_shorter_than_the_cut_as_empty) {
  FormTable forms = tableWith({{96, "x"}});
  buildPastHistoric(forms);
  EXPECT_EQ(row(forms, 12), "is | is | it | îmes | îtes | irent");
}

TEST(simple_tenses, the_present_participle_follows_nous) {
  FormTable forms = tableWith({{3, "mangeons"}});
  buildPresentParticiple(forms);
  EXPECT_EQ(forms[98], "mangeant");
}

TEST(simple_tenses, without_nous_the_present_participle_stays_as_it_was) {
  FormTable forms = tableWith({{98, "*"}});
  buildPresentParticiple(forms);
  EXPECT_EQ(forms[98], "*");
}

TEST(simple_tenses, the_participle_builder_treats_a_double_form_as_one_text) {
  FormTable forms = tableWith({{3, "payons/paions"}});
  buildPresentParticiple(forms);
  EXPECT_EQ(forms[98], "payons/paiant");
}

TEST(simple_tenses, the_imperfect_subjunctive_follows_the_past_historic) {
  FormTable forms = tableWith({{12, "parlai"}, {15, "parlâmes"}});
  buildImperfectSubjunctive(forms);
  EXPECT_EQ(row(forms, 54),
            "parlasse | parlasses | parlât | parlassions | parlassiez | parlassent");
}

TEST(simple_tenses, only_il_of_the_imperfect_subjunctive_takes_the_circumflexed_vowel) {
  FormTable forms = tableWith({{12, "finis"}, {15, "finîmes"}});
  buildImperfectSubjunctive(forms);
  EXPECT_EQ(row(forms, 54), "finisse | finisses | finît | finissions | finissiez | finissent");
}

TEST(simple_tenses, without_a_past_historic_the_imperfect_subjunctive_stays_as_it_was) {
  FormTable forms = tableWith({{15, "x"}, {54, "*"}});
  buildImperfectSubjunctive(forms);
  EXPECT_EQ(forms[54], "*");
  EXPECT_EQ(forms[55], "");
}

TEST(simple_tenses, short_past_historics_do_no_harm) {
  for (const std::string_view je : {"a", "ab", "abc"})
    for (const std::string_view nous : {"", "a", "abc", "abcd"}) {
      FormTable forms = tableWith({{12, je}, {15, nous}});
      buildImperfectSubjunctive(forms);
      EXPECT_TRUE(forms[54].ends_with("sse"));
    }
}

}  // namespace
}  // namespace odmiennik::engine
