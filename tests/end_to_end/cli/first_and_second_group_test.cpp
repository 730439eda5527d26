// SPDX-License-Identifier: GPL-3.0-or-later
// The forms of the regular groups, as a user reads them.
#include <gtest/gtest.h>

#include "shown.h"

namespace odmiennik::end_to_end {
namespace {

TEST(first_group, parler_is_the_pattern) {
  const Shown parler("parler");
  EXPECT_EQ(parler.tense(kPresent), "parle | parles | parle | parlons | parlez | parlent");
  EXPECT_EQ(parler.tense(kPastHistoric),
            "parlai | parlas | parla | parlâmes | parlâtes | parlèrent");
  EXPECT_EQ(parler.box(kFuture), "parlerai");
  EXPECT_EQ(parler.box(kPastParticiple), "parlé");
}

TEST(first_group, the_participle_is_marked_for_agreement_with_etre_only) {
  EXPECT_EQ(Shown("parler").box(kPastParticiple), "parlé");
  EXPECT_EQ(Shown(std::string("parler") + kWithEtre).box(kPastParticiple), "parlé(e)");
}

TEST(first_group, commencer_has_a_cedilla_before_a_and_o) {
  const Shown verb("commencer");
  EXPECT_EQ(verb.box(kPresent + kNous), "commençons");
  EXPECT_EQ(verb.tense(kImperfect),
            "commençais | commençais | commençait | commencions | commenciez | commençaient");
  EXPECT_EQ(verb.tense(kPastHistoric),
            "commençai | commenças | commença | commençâmes | commençâtes | commencèrent");
  EXPECT_EQ(verb.box(kPresentParticiple), "commençant");
}

TEST(first_group, payer_has_two_forms_wherever_its_y_may_change) {
  const Shown verb("payer");
  EXPECT_EQ(verb.tense(kPresent),
            "paye/paie | payes/paies | paye/paie | payons | payez | payent/paient");
  EXPECT_EQ(verb.box(kFuture), "payerai/paierai");
  EXPECT_EQ(verb.tense(kPresentSubjunctive),
            "paye/paie | payes/paies | paye/paie | payions | payiez | payent/paient");
  EXPECT_EQ(verb.tense(kConditional),
            "payerais/paierais | payerais/paierais | payerait/paierait | payerions/paierions | "
            "payeriez/paieriez | payeraient/paieraient");
}

TEST(first_group, verbs_in_eter_and_eler_open_their_e_or_double_their_consonant) {
  EXPECT_EQ(Shown("acheter").box(kPresent), "achète");
  EXPECT_EQ(Shown("racheter").box(kPresent), "rachète");
  EXPECT_EQ(Shown("geler").box(kPresent), "gèle");
  EXPECT_EQ(Shown("jeter").box(kPresent), "jette");
  EXPECT_EQ(Shown("appeler").box(kPresent), "appelle");
}

TEST(first_group, ceder_keeps_its_closed_e_in_the_future_and_semer_opens_its_e) {
  const Shown ceder("céder"), semer("semer");
  EXPECT_EQ(ceder.box(kPresent), "cède");
  EXPECT_EQ(ceder.box(kFuture), "céderai");
  EXPECT_EQ(semer.box(kPresent), "sème");
  EXPECT_EQ(semer.box(kFuture), "sèmerai");
}

TEST(first_group, verbs_in_ller_stay_regular) {
  for (const std::string stem : {"travaill", "conseill", "brill", "querell"}) {
    const Shown verb(stem + "er");
    EXPECT_EQ(verb.tense(kPresent), stem + "e | " + stem + "es | " + stem + "e | " + stem +
                                        "ons | " + stem + "ez | " + stem + "ent");
    EXPECT_EQ(verb.box(kFuture), stem + "erai");
  }
}

TEST(first_group, arguer_has_a_diaeresis_where_its_u_is_heard) {
  const Shown verb("arguer");
  EXPECT_EQ(verb.box(kPresent), "arguë");
  EXPECT_EQ(verb.box(kImperfect + kNous), "arguïons");
}

TEST(first_group, renvoyer_goes_like_envoyer) {
  const Shown verb("renvoyer");
  EXPECT_EQ(verb.box(kPresent), "renvoie");
  EXPECT_EQ(verb.box(kFuture), "renverrai");
}

TEST(first_group, proteger_changes_its_e_and_keeps_its_soft_g) {
  const Shown verb("protéger");
  EXPECT_EQ(verb.tense(kPresent),
            "protège | protèges | protège | protégeons | protégez | protègent");
  EXPECT_EQ(verb.box(kImperfect), "protégeais");
  EXPECT_EQ(verb.box(kImperfect + kNous), "protégions");
  EXPECT_EQ(verb.box(kPresentParticiple), "protégeant");
}

TEST(second_group, finir_choisir_and_reussir_take_iss) {
  for (const std::string stem : {"fini", "choisi", "réussi"}) {
    const Shown verb(stem + "r");
    EXPECT_EQ(verb.tense(kPresent), stem + "s | " + stem + "s | " + stem + "t | " + stem +
                                        "ssons | " + stem + "ssez | " + stem + "ssent");
    EXPECT_EQ(verb.box(kPastParticiple), stem);
    EXPECT_EQ(Shown(stem + "r" + kWithEtre).box(kPastParticiple), stem + "(e)");
  }
}

TEST(second_group, hair_loses_its_diaeresis_in_the_singular_of_the_present_alone) {
  const Shown verb("haïr");
  EXPECT_EQ(verb.tense(kPresent), "hais | hais | hait | haïssons | haïssez | haïssent");
  EXPECT_EQ(verb.tense(kPastHistoric), "haïs | haïs | haït | haïmes | haïtes | haïrent");
  EXPECT_EQ(verb.box(kPastParticiple), "haï");
}

// deliberate: two letters are cut, and with them the diaeresis.
TEST(second_group, another_verb_in_ir_with_a_diaeresis_keeps_it_in_infinitive_and_future) {
  const Shown verb("zamuïr");
  EXPECT_EQ(verb.box(kPresent), "zamuis");
  EXPECT_EQ(verb.box(kPresent + kNous), "zamuissons");
  EXPECT_EQ(verb.box(kFuture), "zamuïrai");
  EXPECT_TRUE(verb.has("model", "\"finir\""));
}

}  // namespace
}  // namespace odmiennik::end_to_end
