// SPDX-License-Identifier: GPL-3.0-or-later
// Forms that the user has saved, and what the program makes of them.
#include <gtest/gtest.h>

#include <map>

#include "shown.h"
#include "tests/support/test_program.h"
#include "verb_folder.h"

namespace odmiennik::end_to_end {
namespace {

using Forms = std::map<int, std::string>;

// A line of the file: a comma behind every form, then the flag of the auxiliary.
std::string lineOf(const Forms& forms, int auxiliary) {
  std::string line;
  for (int slot = 0; slot < 101; ++slot) {
    if (forms.contains(slot)) line += odmiennik::testing::french(forms.at(slot));
    line += ",";
  }
  return line + " " + std::to_string(auxiliary) + "\r\n";
}

class own_forms : public ::testing::Test {
 protected:
  // The file holds one verb.
  void save(const Forms& forms, int auxiliary = 1) { saveLines(lineOf(forms, auxiliary), 1); }
  void saveLines(const std::string& lines, int count) {
    folder_.writeCount(count);
    folder_.write("Czasowniki.dat", lines);
  }
  [[nodiscard]] Shown shown(const std::string& typed, Arguments options = {}) const {
    options.insert(options.end(), {"--folder", folder_.path()});
    return Shown(typed, options);
  }

 private:
  VerbFolder folder_;
};

TEST_F(own_forms, placeholders_of_past_infinitive_and_participle_are_filled_and_texts_are_kept) {
  save({{kInfinitive, "zyzer"}, {97, "*"}, {kPastParticiple, "zyzé"}, {100, "mon texte"}});
  EXPECT_EQ(shown("zyzer").box(97), "avoir zyzé");
  EXPECT_EQ(shown("zyzer").box(100), "mon texte");
}

TEST_F(own_forms, an_empty_form_stays_empty_where_a_placeholder_would_be_filled) {
  save({{kInfinitive, "zyzer"}, {24, ""}, {25, "*"}, {kPastParticiple, "zyzé"}});
  EXPECT_EQ(shown("zyzer").box(24), " -- ");
  EXPECT_EQ(shown("zyzer").box(25), "as zyzé");
}

TEST_F(own_forms, without_a_future_the_conditional_stays_as_it_was_saved) {
  save({{kInfinitive, "zyzer"}, {72, "*"}, {73, "mon texte"}});
  EXPECT_EQ(shown("zyzer").box(72), "*");
  EXPECT_EQ(shown("zyzer").box(73), "mon texte");
}

TEST_F(own_forms, the_imperative_drops_the_s_of_es_and_keeps_any_other) {
  save({{kInfinitive, "zyzer"}, {1, "vas"}, {90, "*"}});
  EXPECT_EQ(shown("zyzer").box(90), "vas");
  save({{kInfinitive, "zyzer"}, {1, "parles"}, {90, "*"}});
  EXPECT_EQ(shown("zyzer").box(90), "parle");
}

TEST_F(own_forms, a_text_in_the_first_form_of_a_tense_keeps_the_whole_tense) {
  save({{kInfinitive, "zyzer"}, {3, "zyzons"}, {6, "mon texte"}, {7, "*"}});
  EXPECT_EQ(shown("zyzer").box(6), "mon texte");
  EXPECT_EQ(shown("zyzer").box(7), "*");
}

TEST_F(own_forms, the_subjunctive_takes_nous_and_vous_from_an_irregular_imperfect) {
  save({{kInfinitive, "zyzer"},
        {5, "zyzent"},
        {6, "zixais"},
        {9, "zixions"},
        {10, "zixiez"},
        {48, "*"}});
  EXPECT_EQ(shown("zyzer").tense(48), "zyze | zyzes | zyze | zixions | zixiez | zyzent");
}

TEST_F(own_forms, a_mark_of_agreement_that_was_saved_is_kept_with_etre_and_removed_with_avoir) {
  save({{kInfinitive, "zyzer"}, {24, "*"}, {29, "*"}, {kPastParticiple, "zyzé(e)"}}, 0);
  EXPECT_EQ(shown("zyzer").box(24), "suis zyzé(e)");
  EXPECT_EQ(shown("zyzer").box(29), "sont zyzé(e)s");
  EXPECT_EQ(shown("zyzer", {"--auxiliary", "avoir"}).box(24), "ai zyzé");
}

TEST_F(own_forms, of_a_participle_with_variants_the_first_goes_into_the_compound_tenses) {
  save({{kInfinitive, "zyzer"}, {24, "*"}, {kPastParticiple, "béni/bénit"}});
  EXPECT_EQ(shown("zyzer").box(24), "ai béni");
  save({{kInfinitive, "zyzer"}, {24, "*"}, {kPastParticiple, "sous; soute"}});
  EXPECT_EQ(shown("zyzer").box(24), "ai sous");
}

TEST_F(own_forms, a_placeholder_that_nothing_can_fill_stays) {
  save({{kInfinitive, "zyzer"}, {6, "*"}, {24, "*"}});
  EXPECT_EQ(shown("zyzer").box(24), "*");
  EXPECT_EQ(shown("zyzer").box(6), "*");
}

TEST_F(own_forms, while_a_verb_is_edited_its_placeholders_are_shown) {
  save({{kInfinitive, "zyzer"}, {24, "*"}, {kPastParticiple, "zyzé"}});
  EXPECT_EQ(shown("zyzer", {"--edit"}).box(24), "*");
}

TEST_F(own_forms, a_form_that_has_its_reflexive_pronoun_gets_no_second_one) {
  save({{0, "me zyze"},
        {1, "te zyzes"},
        {2, "se zyze"},
        {3, "nous zyzons"},
        {90, "zyze-toi"},
        {kInfinitive, "se zyzer"}},
       0);
  const Shown reflexive = shown("se zyzer"), plain = shown("zyzer");
  EXPECT_EQ(reflexive.tense(0), "me zyze | te zyzes | se zyze | nous zyzons |  --  |  -- ");
  EXPECT_EQ(reflexive.box(90), "zyze-toi");
  EXPECT_EQ(plain.tense(0), "zyze | zyzes | zyze | zyzons |  --  |  -- ");
  EXPECT_EQ(plain.box(90), "zyze");
}

TEST_F(own_forms, an_imperative_with_its_pronoun_before_en_or_y_gets_no_second_one) {
  save({{90, "va-t'en"}, {91, "allons-nous-en"}, {92, "rendez-vous-y"}, {kInfinitive, "se zyzer"}},
       0);
  EXPECT_EQ(shown("se zyzer").tense(90), "va-t'en | allons-nous-en | rendez-vous-y");
  EXPECT_EQ(shown("zyzer").tense(90), "va | allons | rendez");
}

// deliberate: the pronoun goes with the form that was saved, not with what the box shows of it.
TEST_F(own_forms, deliberate_je_goes_with_the_saved_form_and_not_with_the_box) {
  save({{0, "m'amuse"}, {kInfinitive, "s'amuser"}}, 0);
  EXPECT_EQ(shown("amuser").box(0), "amuse");
  EXPECT_EQ(shown("amuser").pronoun(0), "je");
}

TEST_F(own_forms, a_verb_saved_with_a_capital_is_found) {
  save({{0, "mon texte"}, {kInfinitive, "Aimer"}});
  EXPECT_EQ(shown("aimer").box(0), "mon texte");
}

TEST_F(own_forms, of_a_verb_saved_with_and_without_its_pronoun_the_one_that_was_typed_is_taken) {
  saveLines(lineOf({{0, "me zyze"}, {kInfinitive, "se zyzer"}}, 0) +
                lineOf({{0, "zaze"}, {kInfinitive, "zyzer"}}, 1),
            2);
  EXPECT_EQ(shown("zyzer").box(0), "zaze");
  EXPECT_EQ(shown("se zyzer").box(0), "me zyze");
}

TEST_F(own_forms, one_that_is_named_resetuj_is_out_of_reach) {
  save({{0, "mon texte"}, {kInfinitive, "resetuj"}});
  EXPECT_TRUE(shown("resetuj").has("source", "\"none\""));
  EXPECT_EQ(shown("resetuj").box(0), "");
}

}  // namespace
}  // namespace odmiennik::end_to_end
