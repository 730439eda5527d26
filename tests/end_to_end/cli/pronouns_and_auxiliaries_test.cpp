// SPDX-License-Identifier: GPL-3.0-or-later
// What stands before a form: pronouns and auxiliaries.
#include <gtest/gtest.h>

#include <algorithm>

#include "shown.h"

namespace odmiennik::end_to_end {
namespace {

// Those of the compound tenses with six persons, and the single ones.
std::vector<int> compoundSlots() {
  std::vector<int> slots{93, 94, 95, 97, 100};
  for (const int first : {24, 30, 36, 42, 60, 66, 78, 84})
    for (int person = 0; person < 6; ++person) slots.push_back(first + person);
  return slots;
}

TEST(compound_tenses, are_built_with_avoir) {
  const Shown verb("parler");
  EXPECT_EQ(verb.box(24), "ai parlé");
  EXPECT_EQ(verb.box(47), "auront parlé");
  EXPECT_EQ(verb.box(93), "aie parlé");
  EXPECT_EQ(verb.box(97), "avoir parlé");
  EXPECT_EQ(verb.box(100), "ayant parlé");
}

TEST(compound_tenses, agree_in_the_plural_with_etre_but_not_in_the_imperative) {
  const Shown verb("aller");
  EXPECT_EQ(verb.box(26), "est allé(e)");
  EXPECT_EQ(verb.box(27), "sommes allé(e)s");
  EXPECT_EQ(verb.box(89), "fussent allé(e)s");
  EXPECT_EQ(verb.box(95), "soyez allé(e)");
  EXPECT_EQ(verb.box(97), "être allé(e)");
}

// deliberate: a form kept as it was stored.
TEST(compound_tenses, deliberate_ils_aurainet_is_kept_with_avoir) {
  for (const char* verb : {"parler", "finir", "savoir"}) {
    const Shown shown(verb);
    EXPECT_EQ(shown.box(83), "aurainet " + shown.box(99)) << verb;
  }
  EXPECT_EQ(Shown("avoir").box(77), "aurainet");
  EXPECT_EQ(Shown("aller").box(83), "seraient allé(e)s");
}

TEST(compound_tenses, are_all_built_anew_with_the_auxiliary_that_the_user_chooses) {
  const Shown known("monter"), chosen("monter", {"--auxiliary", "etre"});
  for (const int slot : compoundSlots()) {
    EXPECT_EQ(known.box(slot).find("(e)"), std::string::npos) << slot << known.box(slot);
    EXPECT_NE(chosen.box(slot).find("monté(e)"), std::string::npos) << slot << chosen.box(slot);
  }
  const std::vector<int> compounds = compoundSlots();
  for (int slot = 0; slot < kBoxes; ++slot) {
    const bool isCompound = std::ranges::find(compounds, slot) != compounds.end();
    EXPECT_EQ(known.box(slot) != chosen.box(slot), isCompound) << slot;
  }
}

TEST(compound_tenses, stay_missing_with_the_other_auxiliary_where_the_verb_lacks_them) {
  const Shown verb("falloir", {"--auxiliary", "etre"});
  EXPECT_EQ(verb.tense(24), " --  |  --  | est fallu(e) |  --  |  --  |  -- ");
}

TEST(impersonal_verb, has_il_forms_infinitives_and_two_participles_only) {
  const Shown verb("bruiner");
  for (int slot = 0; slot < kBoxes; ++slot) {
    const bool isShown = (slot < 90 && slot % 6 == 2) || (slot >= 96 && slot <= 99);
    EXPECT_EQ(verb.box(slot) != " -- ", isShown) << slot << verb.box(slot);
  }
  EXPECT_EQ(verb.box(26), "a bruiné");
}

TEST(pronominal_verb, is_recognised_among_blanks_and_capitals) {
  const Shown verb("  Se Laver  ");
  EXPECT_EQ(verb.box(0), "me lave");
  EXPECT_EQ(verb.box(24), "me suis lavé(e)");
  EXPECT_EQ(verb.box(96), "se laver");
  EXPECT_TRUE(verb.has("transitive", "\"nie\",\"intransitive\":\"nie\",\"auxiliary\":\"être\""));
}

TEST(pronominal_verb, has_no_past_imperative) {
  const Shown verb("se laver");
  EXPECT_EQ(verb.tense(90), "lave-toi | lavons-nous | lavez-vous");
  EXPECT_EQ(verb.tense(93), " --  |  --  |  -- ");
}

TEST(pronominal_verb, leaves_a_missing_form_missing_and_its_subject_where_it_is) {
  const Shown verb("s'ensuivre");
  EXPECT_EQ(verb.box(0), " -- ");
  EXPECT_EQ(verb.pronoun(0), "je");
  EXPECT_EQ(verb.box(2), "s'ensuit");
}

TEST(pronouns, je_is_cut_before_a_vowel_and_a_mute_h) {
  EXPECT_EQ(Shown("aimer").pronoun(0), "j'");
  EXPECT_EQ(Shown("habiter").pronoun(0), "j'");
  EXPECT_EQ(Shown("parler").pronoun(0), "je");
  EXPECT_EQ(Shown("parler").pronoun(24), "j'");
}

TEST(pronouns, an_aspirated_h_cuts_neither_je_nor_me_nor_se) {
  EXPECT_EQ(Shown("haïr").pronoun(0), "je");
  const Shown reflexive("se haïr");
  EXPECT_EQ(reflexive.box(0), "me hais");
  EXPECT_EQ(reflexive.box(2), "se hait");
}

TEST(pronouns, je_stays_whole_before_a_reflexive_pronoun) {
  const Shown verb("s'habiller");
  EXPECT_EQ(verb.pronoun(0), "je");
  EXPECT_EQ(verb.box(0), "m'habille");
}

// deliberate: these letters are no vowels here.
TEST(pronouns, deliberate_je_is_not_cut_before_letters_left_out_of_the_vowels) {
  for (const char* verb : {"îloter", "ûlir", "ïambler", "œuvrer"})
    EXPECT_EQ(Shown(verb).pronoun(0), "je") << verb;
}

TEST(pronouns, falloir_has_captions_of_its_own) {
  const Shown falloir("falloir"), parler("parler");
  EXPECT_EQ(falloir.caption(0), "Il ne crois pas que ...");
  EXPECT_EQ(falloir.caption(1), "Il ne croyais pas que ...");
  EXPECT_EQ(parler.caption(0), "Il faut que ...");
  EXPECT_EQ(parler.caption(1), "Il fallait que ...");
}

TEST(record_of_a_verb, with_codes_that_are_unknown_changes_nothing) {
  const Shown verb("parler\t|9|9|9|9");
  EXPECT_TRUE(verb.has("labels",
                       "{\"group\":\"b.d.\",\"transitive\":\"b.d.\","
                       "\"intransitive\":\"b.d.\",\"auxiliary\":\"b.d.\","
                       "\"government\":\"b.d.\"}"));
  EXPECT_TRUE(verb.has("aux_checked", "true,\"aux_enabled\":true"));
}

TEST(record_of_a_verb, ends_with_its_mark_and_is_aspirated_only_with_six_fields) {
  EXPECT_TRUE(Shown("parler\t|1|1|1|1|xx1").has("impersonal", "true"));
  EXPECT_TRUE(Shown("parler\t|1|1|1|1|1x").has("impersonal", "false"));
  EXPECT_TRUE(Shown("hâler\th|1|1|1|1|0").has("h_aspirate", "true"));
  EXPECT_TRUE(Shown("hâler\th|1|1|1|1").has("h_aspirate", "false"));
}

TEST(typed_verb, is_trimmed_of_blanks_alone_and_only_before_its_prefix_is_removed) {
  EXPECT_EQ(Shown("   parler  ").box(96), "parler");
  EXPECT_EQ(Shown("se  laver").box(0), "me  lave");
}

TEST(typed_verb, resetuj_is_no_verb) {
  EXPECT_TRUE(
      Shown("  Resetuj ")
          .has("messages", messages("Ustawienia zostaną zresetowane, a program zamknięty.")));
}

}  // namespace
}  // namespace odmiennik::end_to_end
