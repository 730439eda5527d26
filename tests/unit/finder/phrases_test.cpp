// SPDX-License-Identifier: GPL-3.0-or-later
// Forms with pronouns and auxiliaries.
#include "tests/unit/finder/finding.h"

namespace odmiennik::testing {
namespace {

class finding_a_phrase : public Finding {};

TEST_F(finding_a_phrase, goes_by_its_subject) {
  EXPECT_EQ(find("nous allions"), (Lines{"nous allions | aller | Indicatif imparfait",
                                         "que nous allions | aller | Subjonctif présent",
                                         "nous allions | allier | Indicatif présent"}));
  EXPECT_EQ(find("elle suit"), Lines{"il suit | suivre | Indicatif présent"});
  EXPECT_EQ(find("vs parlez"), Lines{"vous parlez | parler | Indicatif présent"});
  EXPECT_EQ(find("tu suivons"), Lines{});
}

TEST_F(finding_a_phrase, behind_que_is_a_subjunctive) {
  EXPECT_EQ(find("que nous allions"), Lines{"que nous allions | aller | Subjonctif présent"});
  EXPECT_EQ(find("il faut qu’il soit"), Lines{"qu'il soit | être | Subjonctif présent"});
}

TEST_F(finding_a_phrase, knows_the_compound_tenses) {
  EXPECT_EQ(find("j'aurais mangé"),
            Lines{"j'aurais mangé | manger | Conditionnel passé 1re forme"});
  EXPECT_EQ(find("qu'il eût fini"), Lines{"qu'il eût fini | finir | Subjonctif plus-que-parfait"});
  EXPECT_EQ(find("il eût fini"), (Lines{"qu'il eût fini | finir | Subjonctif plus-que-parfait",
                                        "il eût fini | finir | Conditionnel passé 2e forme"}));
  EXPECT_EQ(find("ayant été"), Lines{"ayant été | être | Participe passé composé"});
  EXPECT_EQ(find("être allée"), Lines{"être allée | aller | Infinitif passé f"});
}

TEST_F(finding_a_phrase, wants_the_auxiliary_that_the_verb_has) {
  EXPECT_EQ(find("j'ai allé"), Lines{});
  EXPECT_EQ(verbsOf("je suis allé"), Lines{"aller"});
  EXPECT_EQ(verbsOf("j'ai monté"), Lines{"monter"});
  EXPECT_EQ(verbsOf("je suis monté"), Lines{"monter"});
}

TEST_F(finding_a_phrase, wants_a_participle_that_can_agree_so) {
  EXPECT_EQ(find("nous sommes allées"),
            Lines{"nous sommes allées | aller | Indicatif passé composé fp"});
  EXPECT_EQ(find("je suis allées"), Lines{});
  EXPECT_EQ(find("vous êtes allée"),
            Lines{"vous êtes allée | aller | Indicatif passé composé f norm"});
}

TEST_F(finding_a_phrase, knows_reflexive_verbs) {
  EXPECT_EQ(find("nous nous sommes lavés"),
            Lines{"nous nous sommes lavés | se laver | Indicatif passé composé mp"});
  EXPECT_EQ(find("je m'habille"), (Lines{"je m'habille | s'habiller | Indicatif présent",
                                         "que je m'habille | s'habiller | Subjonctif présent"}));
  EXPECT_EQ(find("lavez-vous"), (Lines{"vous lavez | laver | Indicatif présent",
                                       "lavez-vous | se laver | Impératif présent"}));
  EXPECT_EQ(find("se haïr"), Lines{"se haïr | se haïr | Infinitif présent"});
  EXPECT_EQ(find("s'étant lavé"), Lines{"s'étant lavé | se laver | Participe passé composé"});
}

TEST_F(finding_a_phrase, knows_a_feminine_that_is_more_than_an_e) {
  EXPECT_EQ(find("dissoutes"), Lines{"dissoutes | dissoudre | Participe passé fp"});
  EXPECT_EQ(find("elle s'est dissoute"),
            Lines{"il s'est dissoute | se dissoudre | Indicatif passé composé f"});
}

TEST_F(finding_a_phrase, knows_en_and_y_that_belong_to_the_verb_in_the_norm) {
  EXPECT_EQ(find("va-t'en"), Lines{"va-t'en | s'en aller | Impératif présent norm"});
  EXPECT_EQ(find("je m’en vais"), Lines{"je m'en vais | s'en aller | Indicatif présent norm"});
  EXPECT_EQ(find("il s'en est allé"),
            Lines{"il s'en est allé | s'en aller | Indicatif passé composé norm"});
}

TEST_F(finding_a_phrase, knows_the_subject_of_a_question) {
  EXPECT_EQ(find("mange-t-il"), (Lines{"il mange | manger | Indicatif présent",
                                       "qu'il mange | manger | Subjonctif présent"}));
  EXPECT_EQ(verbsOf("as-tu mangé"), Lines{"manger"});
}

TEST_F(finding_a_phrase, does_without_accents_and_with_one_slip) {
  EXPECT_EQ(find("j'ai ete"), Lines{"j'ai été | être | Indicatif passé composé accents"});
  EXPECT_EQ(find("j'ai mamgé").front(), "j'ai mangé | manger | Indicatif passé composé slip");
  EXPECT_EQ(find("j'auraiss mangé").front(),
            "j'aurais mangé | manger | Conditionnel passé 1re forme slip");
}

TEST_F(finding_a_phrase, takes_blanks_as_they_come) {
  EXPECT_EQ(find("  Qu’il   eût  fini "), find("qu'il eût fini"));
  EXPECT_EQ(find("nous nous nous lavons lavons"), Lines{});
  EXPECT_EQ(find("s'"), Lines{});
  EXPECT_EQ(find("-toi"), Lines{});
}

}  // namespace
}  // namespace odmiennik::testing
