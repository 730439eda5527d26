// SPDX-License-Identifier: GPL-3.0-or-later
// Forms as they are said.
#include "app/logic/form_phrase.h"

#include <gtest/gtest.h>

#include "engine/slots.h"
#include "engine/windows1252.h"

namespace odmiennik::app {
namespace {

// The phrase of a box whose text is given in UTF-8.
Utf8Text phrase(int slot, Utf8View text, const engine::EngineFlags& flags = {}) {
  return formPhrase(slot, engine::fromUtf8(text).text, flags);
}

TEST(form_phrase, has_its_subject_in_full) {
  EXPECT_EQ(phrase(0, "parle"), "je parle");
  EXPECT_EQ(phrase(1, "parles"), "tu parles");
  EXPECT_EQ(phrase(3, "parlons"), "nous parlons");
  EXPECT_EQ(phrase(4, "parlez"), "vous parlez");
  EXPECT_EQ(phrase(5, "parlent"), "ils parlent");
}

TEST(form_phrase, reads_out_the_agreements_of_the_norm) {
  EXPECT_EQ(phrase(27, "nous sommes assis(es)"), "nous nous sommes assis lub assises");
  EXPECT_EQ(phrase(29, "sont assis(es)"), "ils sont assis lub elles sont assises");
  EXPECT_EQ(phrase(97, "être allé(e)(s)"), "être allé lub allée lub allés lub allées");
  EXPECT_EQ(phrase(97, "s'être assis(e, es)"), "s'être assis lub assise lub assises");
}

TEST(form_phrase, elides_je_in_the_norm_as_the_norm_does) {
  const engine::EngineFlags flags{.variety = engine::Variety::norm};
  EXPECT_EQ(phrase(0, "œuvre", flags), "j'œuvre");
  EXPECT_EQ(phrase(0, "yodle", flags), "je yodle");
}

TEST(form_tip, tells_the_norm_that_a_form_departs_from) {
  const engine::EngineFlags flags;
  EXPECT_EQ(formTip({.slot = 2, .text = "lir", .flags = flags, .norm = "lit"}),
            "il lir\nDzisiejsza norma: lit\nF1: kiedy używa się tej formy");
  EXPECT_EQ(formTip({.slot = 5, .text = "s'agissent", .flags = flags, .norm = " -- "}),
            "ils s'agissent\nDzisiejsza norma: bez tej formy\nF1: kiedy używa się tej formy");
}

TEST(form_phrase, elides_je_as_the_table_does) {
  EXPECT_EQ(phrase(0, "aime"), "j'aime");
  EXPECT_EQ(phrase(0, "habite"), "j'habite");
  EXPECT_EQ(phrase(0, "hais", {.hAspirate = true}), "je hais");
}

TEST(form_phrase, has_que_before_a_subjunctive) {
  EXPECT_EQ(phrase(51, "promenions"), "que nous promenions");
  EXPECT_EQ(phrase(48, "aime"), "que j'aime");
  EXPECT_EQ(phrase(50, "aime"), "qu'il aime");
  EXPECT_EQ(phrase(71, "eussent aimé"), "qu'ils eussent aimé");
  EXPECT_EQ(phrase(72, "aimerais"), "j'aimerais");
}

TEST(form_phrase, keeps_the_reflexive_pronoun_of_the_form) {
  EXPECT_EQ(phrase(0, "me promène"), "je me promène");
  EXPECT_EQ(phrase(51, "nous promenions"), "que nous nous promenions");
}

TEST(form_phrase, reads_the_agreement_out) {
  EXPECT_EQ(phrase(24, "suis allé(e)"), "je suis allé lub allée");
  EXPECT_EQ(phrase(27, "sommes allé(e)s"), "nous sommes allés lub allées");
  EXPECT_EQ(phrase(100, "s'étant promené(e)"), "s'étant promené lub promenée");
  EXPECT_EQ(phrase(99, "allé(e)"), "allé lub allée");
}

TEST(form_phrase, gives_the_feminine_of_il_its_own_pronoun) {
  EXPECT_EQ(phrase(26, "est allé(e)"), "il est allé lub elle est allée");
  EXPECT_EQ(phrase(65, "soient allé(e)s"), "qu'ils soient allés lub qu'elles soient allées");
}

TEST(form_phrase, leaves_the_impersonal_il_alone) {
  EXPECT_EQ(phrase(26, "s'est agi(e)", {.isImpersonal = true}), "il s'est agi");
}

TEST(form_phrase, agrees_participles_that_are_no_simple_ones) {
  EXPECT_EQ(phrase(27, "nous sommes assis(e)s"), "nous nous sommes assis lub assises");
  EXPECT_EQ(phrase(24, "me suis dissous(e)"), "je me suis dissous lub dissoute");
  EXPECT_EQ(phrase(24, "me suis mû(e)"), "je me suis mû lub mue");
  EXPECT_EQ(phrase(27, "nous sommes dû(e)s"), "nous nous sommes dus lub dues");
}

TEST(form_phrase, reads_out_what_the_norm_has_room_for) {
  EXPECT_EQ(phrase(24, "me suis dû/due"), "je me suis dû lub je me suis due");
  EXPECT_EQ(phrase(97, "s'être dû/due(s)/dus"),
            "s'être dû lub s'être due lub s'être dues lub s'être dus");
  EXPECT_EQ(phrase(26, "s'est dissous/-te"), "il s'est dissous lub elle s'est dissoute");
  EXPECT_EQ(phrase(27, "nous sommes dissous/-tes"), "nous nous sommes dissous lub dissoutes");
  EXPECT_EQ(phrase(28, "vous êtes dissous/-te(s)"),
            "vous vous êtes dissous lub dissoute lub dissoutes");
}

TEST(form_phrase, says_each_variant_for_itself) {
  EXPECT_EQ(phrase(0, "paye/paie"), "je paye lub je paie");
  EXPECT_EQ(phrase(48, "assoie/asseye"), "que j'assoie lub que j'asseye");
  EXPECT_EQ(phrase(99, "résolu/résous"), "résolu lub résous");
  EXPECT_EQ(phrase(99, "dû, due"), "dû lub due");
}

TEST(form_phrase, passes_over_a_variant_that_is_missing) {
  EXPECT_EQ(phrase(91, " -- /voulons"), "voulons\u00A0!");
}

TEST(form_phrase, gives_each_variant_the_reflexive_pronoun) {
  EXPECT_EQ(phrase(0, "m'assois/assieds"), "je m'assois lub je m'assieds");
  EXPECT_EQ(phrase(0, "me paye/paie"), "je me paye lub je me paie");
  EXPECT_EQ(phrase(2, "s'effraye/paie"), "il s'effraye lub il se paie");
  EXPECT_EQ(phrase(3, "nous assoyons/asseyons"), "nous nous assoyons lub nous nous asseyons");
  EXPECT_EQ(phrase(90, "paye/paie-toi"), "paye-toi lub paie-toi\u00A0!");
}

TEST(form_phrase, calls_in_the_imperative) {
  EXPECT_EQ(phrase(90, "parle"), "parle\u00A0!");
  EXPECT_EQ(phrase(93, "sois allé(e)"), "sois allé lub allée\u00A0!");
}

TEST(form_phrase, has_no_subject_in_infinitives_and_participles) {
  EXPECT_EQ(phrase(96, "se laver"), "se laver");
  EXPECT_EQ(phrase(97, "être allé(e)"), "être allé lub allée");
  EXPECT_EQ(phrase(98, "allant"), "allant");
}

TEST(form_phrase, is_empty_where_there_is_no_form) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    EXPECT_EQ(phrase(slot, " -- "), "") << slot;
    EXPECT_EQ(phrase(slot, ""), "") << slot;
    EXPECT_EQ(phrase(slot, " / ,"), "") << slot;
  }
}

Utf8Text tip(const ShownForm& shown) { return formTip(shown); }

constexpr const char* kPageKey = "F1: kiedy używa się tej formy";

TEST(form_tip, says_the_phrase_and_the_key_that_explains_the_form) {
  EXPECT_EQ(tip({.slot = 0, .text = "parle", .flags = {}}), Utf8Text("je parle\n") + kPageKey);
}

TEST(form_tip, says_that_a_form_is_the_users_own) {
  EXPECT_EQ(tip({.slot = 98, .text = "parlant", .flags = {}, .isOwn = true}),
            Utf8Text("parlant\nz własnego pliku czasowników\n") + kPageKey);
}

TEST(form_tip, says_that_there_is_no_form) {
  EXPECT_EQ(tip({.slot = 98, .text = " -- ", .flags = {}}),
            Utf8Text("ten czasownik nie ma tej formy\n") + kPageKey);
}

TEST(form_tip, says_nothing_of_an_empty_box_but_the_entry_box) {
  EXPECT_EQ(tip({.slot = 0, .text = "", .flags = {}}), "");
  EXPECT_EQ(tip({.slot = 96, .text = "", .flags = {}}), "wpisz bezokolicznik i naciśnij Enter");
}

TEST(form_tip, keeps_to_the_phrase_while_the_verb_is_edited) {
  EXPECT_EQ(tip({.slot = 0, .text = "parle", .flags = {}, .isEditing = true}), "je parle");
}

}  // namespace
}  // namespace odmiennik::app
