// SPDX-License-Identifier: GPL-3.0-or-later
// Single words: every reading, accents, slips of the finger.
#include "tests/unit/finder/finding.h"

namespace odmiennik::testing {
namespace {

class finding_a_word : public Finding {};

TEST_F(finding_a_word, tells_every_verb_and_place_that_it_may_be) {
  EXPECT_EQ(find("allions"), (Lines{"nous allions | aller | Indicatif imparfait",
                                    "que nous allions | aller | Subjonctif présent",
                                    "nous allions | allier | Indicatif présent",
                                    "allions | allier | Impératif présent"}));
  EXPECT_EQ(find("fus"), (Lines{"je fus | être | Indicatif passé simple",
                                "tu fus | être | Indicatif passé simple"}));
}

TEST_F(finding_a_word, puts_the_more_frequent_verb_first) {
  EXPECT_EQ(verbsOf("suis"), (Lines{"être", "suivre"}));
  EXPECT_EQ(verbsOf("crois"), (Lines{"croire", "croître"}));
}

TEST_F(finding_a_word, knows_either_half_of_a_double_form) {
  EXPECT_EQ(find("puis"), Lines{"je puis | pouvoir | Indicatif présent"});
  EXPECT_EQ(verbsOf("paie"), Lines{"payer"});
  EXPECT_EQ(verbsOf("paye"), Lines{"payer"});
  EXPECT_EQ(verbsOf("assieds"), Lines{"asseoir"});
}

TEST_F(finding_a_word, knows_rare_tenses) {
  EXPECT_EQ(find("parlâmes"), Lines{"nous parlâmes | parler | Indicatif passé simple"});
  EXPECT_EQ(find("mangeassent"), Lines{"qu'ils mangeassent | manger | Subjonctif imparfait"});
  EXPECT_EQ(find("eût"), Lines{"qu'il eût | avoir | Subjonctif imparfait"});
}

TEST_F(finding_a_word, knows_a_participle_in_its_agreement) {
  EXPECT_EQ(find("mangées"), Lines{"mangées | manger | Participe passé fp"});
  EXPECT_EQ(find("due"), Lines{"due | devoir | Participe passé f"});
}

TEST_F(finding_a_word, knows_no_agreement_of_a_participle_that_has_none) {
  for (const finder::Reading& reading : readingsOf("étées"))
    EXPECT_NE(reading.match, finder::Match::exact);
}

TEST_F(finding_a_word, tells_the_system_s_own_forms_from_the_norm_s) {
  EXPECT_EQ(find("aurainet"), Lines{"ils aurainet | avoir | Conditionnel présent system"});
  EXPECT_EQ(find("auraient"), Lines{"ils auraient | avoir | Conditionnel présent norm"});
}

TEST_F(finding_a_word, reads_capital_letters_as_small_ones) {
  EXPECT_EQ(find("  Êtes "), Lines{"vous êtes | être | Indicatif présent"});
}

TEST_F(finding_a_word, knows_a_verb_that_is_always_reflexive) {
  EXPECT_EQ(find("évanouissez").front(), "vous vous évanouissez | s'évanouir | Indicatif présent");
}

TEST_F(finding_a_word, adds_the_accents_that_were_not_typed) {
  EXPECT_EQ(find("preferais"), (Lines{"je préférais | préférer | Indicatif imparfait accents",
                                      "tu préférais | préférer | Indicatif imparfait accents"}));
  EXPECT_EQ(find("etes"), Lines{"vous êtes | être | Indicatif présent accents"});
  EXPECT_EQ(verbsOf("oeuvrons"), Lines{"œuvrer"});
}

TEST_F(finding_a_word, tells_what_is_spelt_so_before_what_has_accents) {
  EXPECT_EQ(find("eut"), (Lines{"il eut | avoir | Indicatif passé simple",
                                "qu'il eût | avoir | Subjonctif imparfait accents"}));
}

TEST_F(finding_a_word, adds_no_accents_to_one_who_types_them) {
  EXPECT_EQ(find("mangé"), Lines{"mangé | manger | Participe passé"});
}

TEST_F(finding_a_word, guesses_at_one_slip_of_the_finger_when_nothing_is_found) {
  EXPECT_EQ(find("manjeons"), (Lines{"nous mangeons | manger | Indicatif présent slip",
                                     "mangeons | manger | Impératif présent slip"}));
  EXPECT_EQ(find("allonz").front(), "nous allons | aller | Indicatif présent slip");
  EXPECT_EQ(verbsOf("parlnos").front(), "parler");
}

TEST_F(finding_a_word, finds_nothing_in_what_is_no_form) {
  EXPECT_EQ(find("chat noir"), Lines{});
  EXPECT_EQ(find(""), Lines{});
  EXPECT_EQ(find("xq"), Lines{});
  EXPECT_EQ(find(std::string(100'000, 'a')), Lines{});
}

TEST_F(finding_a_word, keeps_the_texts_that_the_program_hides) {
  EXPECT_EQ(find("pozdrowienia"), Lines{});
}

}  // namespace
}  // namespace odmiennik::testing
