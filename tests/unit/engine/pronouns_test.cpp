// SPDX-License-Identifier: GPL-3.0-or-later
// Elision, reflexive pronouns, subject pronouns and captions.
#include "engine/pronouns.h"

#include <gtest/gtest.h>

#include <set>

#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::french;

FormTable filledWith(std::string_view form) {
  FormTable forms;
  for (int slot = 0; slot < kSlotCount; ++slot) forms[slot] = french(form);
  return forms;
}

FormTable pronominal(std::string_view form, bool hAspirate = false) {
  FormTable forms = filledWith(form);
  addReflexivePronouns(forms, hAspirate);
  return forms;
}

TEST(elision, happens_before_eleven_letters_and_mute_h_and_no_other_byte) {
  std::set<char> eliding{'h'};
  for (const char letter : french("aâèéeêioôuy")) eliding.insert(letter);
  ASSERT_EQ(eliding.size(), 12U);
  for (int byte = 0; byte < 256; ++byte) {
    const std::string form{static_cast<char>(byte), 'x'};
    EXPECT_EQ(elides(form, false), eliding.contains(form[0])) << byte;
  }
}

TEST(elision, does_not_happen_before_an_aspirated_h_but_before_every_vowel_all_the_same) {
  EXPECT_FALSE(elides("hais", true));
  EXPECT_TRUE(elides("aime", true));
  EXPECT_TRUE(elides("habite", false));
}

TEST(elision, does_not_happen_before_the_letters_left_out_of_the_vowel_class) {
  for (const std::string_view letter : {"à", "î", "û", "ë", "ï", "ö", "ü", "ù", "œ", "æ", "ÿ"})
    EXPECT_FALSE(elides(french(letter), false)) << letter;
}

TEST(elision, does_not_happen_before_capitals) {
  for (const std::string_view letter : {"A", "E", "É", "H", "Y"})
    EXPECT_FALSE(elides(french(letter), false)) << letter;
}

TEST(elision, an_empty_form_does_not_elide) { EXPECT_FALSE(elides("", false)); }

TEST(reflexive_pronouns, stand_in_front_of_the_persons_of_every_tense) {
  const FormTable forms = pronominal("lave");
  const std::string_view wanted[] = {"me lave",   "te lave",   "se lave",
                                     "nous lave", "vous lave", "se lave"};
  for (int slot = 0; slot < 90; ++slot) EXPECT_EQ(forms[slot], wanted[slot % 6]) << slot;
}

TEST(reflexive_pronouns, elide_before_a_vowel) {
  const FormTable forms = pronominal("amuse");
  const std::string_view wanted[] = {"m'amuse",    "t'amuse",    "s'amuse",
                                     "nous amuse", "vous amuse", "s'amuse"};
  for (int slot = 0; slot < 90; ++slot) EXPECT_EQ(forms[slot], wanted[slot % 6]) << slot;
}

TEST(reflexive_pronouns, elide_before_a_mute_h_only) {
  EXPECT_EQ(pronominal("habille")[0], "m'habille");
  EXPECT_EQ(pronominal("hasarde", true)[0], "me hasarde");
  EXPECT_EQ(pronominal("hasarder", true)[96], "se hasarder");
}

TEST(reflexive_pronouns, elide_by_the_auxiliary_in_compound_forms) {
  FormTable forms;
  forms[24] = french("suis lavé(e)");
  forms[25] = french("es lavé(e)");
  forms[30] = french("étais lavé(e)");
  addReflexivePronouns(forms, false);
  EXPECT_EQ(testing::utf8(forms[24]), "me suis lavé(e)");
  EXPECT_EQ(testing::utf8(forms[25]), "t'es lavé(e)");
  EXPECT_EQ(testing::utf8(forms[30]), "m'étais lavé(e)");
}

TEST(reflexive_pronouns, follow_the_present_imperative) {
  const FormTable forms = pronominal("lave");
  EXPECT_EQ(forms[90], "lave-toi");
  EXPECT_EQ(forms[91], "lave-nous");
  EXPECT_EQ(forms[92], "lave-vous");
}

TEST(reflexive_pronouns, empty_the_past_imperative) {
  const FormTable forms = pronominal("lave");
  for (int slot = 93; slot < 96; ++slot) EXPECT_EQ(forms[slot], "") << slot;
}

TEST(reflexive_pronouns, empty_the_past_imperative_also_of_a_placeholder) {
  EXPECT_EQ(pronominal("*")[93], "");
}

TEST(reflexive_pronouns,
     stand_in_front_of_infinitives_and_participles_but_not_the_past_participle) {
  const FormTable consonant = pronominal("laver");
  const FormTable vowel = pronominal("amuser");
  for (const int slot : {96, 97, 98, 100}) {
    EXPECT_EQ(consonant[slot], "se laver") << slot;
    EXPECT_EQ(vowel[slot], "s'amuser") << slot;
  }
  EXPECT_EQ(consonant[99], "laver");
  EXPECT_EQ(vowel[99], "amuser");
}

TEST(reflexive_pronouns, arenot_added_to_a_placeholder) {
  const FormTable forms = pronominal("*");
  for (int slot = 0; slot < kSlotCount; ++slot) {
    if (slot >= 93 && slot < 96) continue;
    EXPECT_EQ(forms[slot], "*") << slot;
  }
}

TEST(reflexive_pronouns, are_not_added_to_an_empty_slot) {
  const FormTable forms = pronominal("");
  for (int slot = 0; slot < kSlotCount; ++slot) EXPECT_EQ(forms[slot], "") << slot;
}

TEST(reflexive_pronouns, are_not_added_behind_se_or_s) {
  for (const std::string_view form : {"se lave", "s'amuse"}) {
    const FormTable forms = pronominal(form);
    for (int slot = 0; slot < kSlotCount; ++slot) {
      if (slot >= 93 && slot < 96) continue;
      EXPECT_EQ(forms[slot], form) << slot;
    }
  }
}

TEST(reflexive_pronouns, are_not_added_where_the_slot_has_its_own) {
  FormTable forms;
  const std::string_view own[] = {"me lave", "t'amuses", "se lave", "nous lavons", "vous lavez"};
  for (int slot = 0; slot < 5; ++slot) forms[slot] = own[slot];
  forms[90] = "lave-toi";
  forms[91] = "lavons-nous";
  forms[92] = "lavez-vous";
  addReflexivePronouns(forms, false);
  for (int slot = 0; slot < 5; ++slot) EXPECT_EQ(forms[slot], own[slot]);
  EXPECT_EQ(forms[90], "lave-toi");
  EXPECT_EQ(forms[91], "lavons-nous");
  EXPECT_EQ(forms[92], "lavez-vous");
}

struct Enclitics {
  int slot;
  const char* form;
  const char* bare;
};

constexpr Enclitics kEnclitics[] = {{90, "va-t'en", "va"},
                                    {90, "rends-t'y", "rends"},
                                    {91, "allons-nous-en", "allons"},
                                    {91, "rendons-nous-y", "rendons"},
                                    {92, "allez-vous-en", "allez"},
                                    {92, "rendez-vous-y", "rendez"}};

TEST(reflexive_pronouns, are_not_added_where_en_or_y_stands_behind_the_imperatives_own) {
  for (const auto& [slot, form, bare] : kEnclitics) {
    FormTable forms;
    forms[slot] = form;
    addReflexivePronouns(forms, false);
    EXPECT_EQ(forms[slot], form);
  }
}

TEST(own_reflexive, before_en_or_y_is_taken_off_the_imperative_for_display) {
  for (const auto& [slot, form, bare] : kEnclitics)
    EXPECT_EQ(withoutOwnReflexive(slot, form), bare) << form;
}

TEST(reflexive_pronouns, are_added_behind_the_pronoun_of_another_person) {
  FormTable forms;
  forms[0] = "te lave";
  forms[90] = "lave-vous";
  addReflexivePronouns(forms, false);
  EXPECT_EQ(forms[0], "me te lave");
  EXPECT_EQ(forms[90], "lave-vous-toi");
}

TEST(own_reflexive, is_taken_off_for_display) {
  EXPECT_EQ(withoutOwnReflexive(0, "me lave"), "lave");
  EXPECT_EQ(withoutOwnReflexive(1, "t'amuses"), "amuses");
  EXPECT_EQ(withoutOwnReflexive(27, "nous sommes"), "sommes");
  EXPECT_EQ(withoutOwnReflexive(90, "lave-toi"), "lave");
  EXPECT_EQ(withoutOwnReflexive(96, "se laver"), "laver");
}

TEST(own_reflexive, of_another_person_stays) {
  EXPECT_EQ(withoutOwnReflexive(0, "te lave"), "te lave");
  EXPECT_EQ(withoutOwnReflexive(90, "lavez-vous"), "lavez-vous");
  EXPECT_EQ(withoutOwnReflexive(96, "me laver"), "me laver");
}

TEST(own_reflexive, is_not_the_beginning_of_a_form) {
  for (const std::string_view form : {"mens", "teins", "sème", "nouais", "vouais", "nous", "m"})
    for (int person = 0; person < 6; ++person)
      EXPECT_EQ(withoutOwnReflexive(person, french(form)), french(form)) << form << person;
}

std::string pronounsOf(std::string_view form, bool hAspirate) {
  SubjectPronouns pronouns;
  chooseSubjectPronouns(filledWith(form), hAspirate, pronouns);
  std::string row;
  for (int person = 0; person < 6; ++person)
    row.append(pronouns[static_cast<std::size_t>(person)]).append(" ");
  return row;
}

TEST(subject_pronouns, abbreviate_nous_and_vous_as_ns_and_vs) {
  EXPECT_EQ(pronounsOf("parle", false), "je tu il ns vs ils ");
}

TEST(subject_pronouns, elide_je_only) {
  EXPECT_EQ(pronounsOf("aime", false), "j' tu il ns vs ils ");
}

TEST(subject_pronouns, follow_the_mark_of_aspirated_h) {
  EXPECT_EQ(pronounsOf("habite", false), "j' tu il ns vs ils ");
  EXPECT_EQ(pronounsOf("hais", true), "je tu il ns vs ils ");
}

TEST(subject_pronouns, je_stays_before_a_reflexive_pronoun) {
  EXPECT_EQ(pronounsOf("m'habille", false), "je tu il ns vs ils ");
}

TEST(subject_pronouns, are_chosen_for_empty_slots_too) {
  EXPECT_EQ(pronounsOf("", false), "je tu il ns vs ils ");
}

TEST(subject_pronouns, are_chosen_tense_by_tense) {
  FormTable forms = filledWith("parle");
  forms[24] = "ai";
  forms[30] = "suis";
  SubjectPronouns pronouns;
  chooseSubjectPronouns(forms, false, pronouns);
  EXPECT_EQ(pronouns[0], "je");
  EXPECT_EQ(pronouns[24], "j'");
  EXPECT_EQ(pronouns[30], "je");
}

TEST(subjunctive_captions, are_il_faut_que_for_every_verb_but_falloir) {
  FormTable forms;
  SubjunctiveCaptions captions;
  for (const std::string_view verb : {"parler", "", "Falloir", "se falloir", "refalloir"}) {
    forms[96] = verb;
    chooseSubjunctiveCaptions(forms, captions);
    EXPECT_EQ(captions[0], "Il faut que ...") << verb;
    EXPECT_EQ(captions[1], "Il fallait que ...");
    EXPECT_EQ(captions[2], "Il faut que ...");
    EXPECT_EQ(captions[3], "Il fallait que ...");
  }
}

TEST(subjunctive_captions, of_falloir_are_il_ne_crois_pas_que) {
  FormTable forms;
  forms[96] = "falloir";
  SubjunctiveCaptions captions;
  chooseSubjunctiveCaptions(forms, captions);
  EXPECT_EQ(captions[0], "Il ne crois pas que ...");
  EXPECT_EQ(captions[1], "Il ne croyais pas que ...");
  EXPECT_EQ(captions[2], "Il ne crois pas que ...");
  EXPECT_EQ(captions[3], "Il ne croyais pas que ...");
}

}  // namespace
}  // namespace odmiennik::engine
