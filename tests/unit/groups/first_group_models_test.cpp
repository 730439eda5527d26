// SPDX-License-Identifier: GPL-3.0-or-later
// The regular paradigm and the spelling models of the first group.
#include <gtest/gtest.h>

#include "tests/unit/groups/by_rule.h"

namespace odmiennik::groups {
namespace {

using engine::kAvoir;
using engine::kEtre;

TEST(regular_paradigm, writes_every_simple_tense) {
  const ByRule parler("parler");
  EXPECT_EQ(parler.tense(0), "parle | parles | parle | parlons | parlez | parlent");
  EXPECT_EQ(parler.tense(6), "parlais | parlais | parlait | parlions | parliez | parlaient");
  EXPECT_EQ(parler.tense(12), "parlai | parlas | parla | parlâmes | parlâtes | parlèrent");
  EXPECT_EQ(parler.tense(18), "parlerai | parleras | parlera | parlerons | parlerez | parleront");
  EXPECT_EQ(parler.tense(48), "parle | parles | parle | parlions | parliez | parlent");
  EXPECT_EQ(parler.tense(54),
            "parlasse | parlasses | parlât | parlassions | parlassiez | parlassent");
  EXPECT_EQ(parler.tense(72),
            "parlerais | parlerais | parlerait | parlerions | parleriez | parleraient");
  EXPECT_EQ(parler.tense(90), "parle | parlons | parlez");
  EXPECT_EQ(parler.slot(98), "parlant");
}

TEST(regular_paradigm, the_participle_takes_the_marker_only_with_etre) {
  EXPECT_EQ(ByRule("parler", kAvoir).slot(99), "parlé");
  EXPECT_EQ(ByRule("parler", kEtre).slot(99), "parlé(e)");
}

TEST(regular_paradigm, leaves_compound_slots_alone) {
  const ByRule parler("parler");
  for (const int slot : {24, 47, 60, 78, 89, 93, 95, 97, 100}) EXPECT_EQ(parler.slot(slot), "");
}

TEST(cer_model, commencer) {
  const ByRule verb("commencer");
  EXPECT_EQ(verb.tense(0), "commence | commences | commence | commençons | commencez | commencent");
  EXPECT_EQ(verb.tense(6),
            "commençais | commençais | commençait | commencions | commenciez | commençaient");
  EXPECT_EQ(verb.tense(12),
            "commençai | commenças | commença | commençâmes | commençâtes | commencèrent");
  EXPECT_EQ(verb.slot(56), "commençât");
  EXPECT_EQ(verb.slot(91), "commençons");
  EXPECT_EQ(verb.slot(98), "commençant");
  EXPECT_EQ(verb.slot(51), "commencions");
}

TEST(scer_model, acquiescer) {
  const ByRule verb("acquiescer");
  EXPECT_EQ(verb.slot(3), "acquiesçons");
  EXPECT_EQ(verb.slot(6), "acquiesçais");
  EXPECT_EQ(verb.slot(12), "acquiesçai");
  EXPECT_EQ(verb.slot(17), "acquiescèrent");
  EXPECT_EQ(verb.slot(98), "acquiesçant");
}

TEST(ger_model, manger) {
  const ByRule verb("manger");
  EXPECT_EQ(verb.tense(0), "mange | manges | mange | mangeons | mangez | mangent");
  EXPECT_EQ(verb.tense(6), "mangeais | mangeais | mangeait | mangions | mangiez | mangeaient");
  EXPECT_EQ(verb.tense(12), "mangeai | mangeas | mangea | mangeâmes | mangeâtes | mangèrent");
  EXPECT_EQ(verb.slot(54), "mangeasse");
  EXPECT_EQ(verb.slot(56), "mangeât");
  EXPECT_EQ(verb.slot(98), "mangeant");
}

TEST(guer_model, writes_the_same_text_as_the_regular_paradigm) {
  const ByRule verb("naviguer");
  EXPECT_EQ(verb.result.model, "-guer");
  EXPECT_EQ(verb.tense(0), "navigue | navigues | navigue | naviguons | naviguez | naviguent");
  EXPECT_EQ(verb.tense(90), "navigue | naviguons | naviguez");
  EXPECT_EQ(verb.slot(12), "naviguai");
  EXPECT_EQ(verb.slot(98), "naviguant");
}

TEST(arguer_model, arguer) {
  const ByRule verb("arguer");
  EXPECT_EQ(verb.tense(0), "arguë | arguës | arguë | arguons | arguez | arguënt");
  EXPECT_EQ(verb.tense(6), "arguais | arguais | arguait | arguïons | arguïez | arguaient");
  EXPECT_EQ(verb.slot(18), "arguërai");
  EXPECT_EQ(verb.slot(72), "arguërais");
  EXPECT_EQ(verb.tense(48), "arguë | arguës | arguë | arguïons | arguïez | arguënt");
  EXPECT_EQ(verb.tense(90), "arguë | arguons | arguez");
}

TEST(arguer_model, claims_narguer_although_grammars_do_not) {
  EXPECT_EQ(ByRule("narguer").slot(0), "narguë");
}

TEST(ayer_model, payer_has_double_forms) {
  const ByRule verb("payer");
  EXPECT_EQ(verb.tense(0), "paye/paie | payes/paies | paye/paie | payons | payez | payent/paient");
  EXPECT_EQ(verb.tense(6), "payais | payais | payait | payions | payiez | payaient");
  EXPECT_EQ(verb.tense(12), "payai | payas | paya | payâmes | payâtes | payèrent");
  EXPECT_EQ(verb.tense(18),
            "payerai/paierai | payeras/paieras | payera/paiera | payerons/paierons | "
            "payerez/paierez | payeront/paieront");
  EXPECT_EQ(verb.tense(90), "paye/paie | payons | payez");
  EXPECT_EQ(verb.slot(98), "payant");
}

TEST(ayer_model, the_subjunctive_is_built_variant_by_variant) {
  EXPECT_EQ(ByRule("payer").tense(48),
            "paye/paie | payes/paies | paye/paie | payions | payiez | payent/paient");
}

TEST(ayer_model, the_conditional_is_built_last_from_the_future) {
  EXPECT_EQ(ByRule("payer").tense(72),
            "payerais/paierais | payerais/paierais | payerait/paierait | payerions/paierions | "
            "payeriez/paieriez | payeraient/paieraient");
}

TEST(oyer_model, noyer) {
  const ByRule verb("noyer");
  EXPECT_EQ(verb.tense(0), "noie | noies | noie | noyons | noyez | noient");
  EXPECT_EQ(verb.slot(18), "noierai");
  EXPECT_EQ(verb.slot(72), "noierais");
  EXPECT_EQ(verb.tense(48), "noie | noies | noie | noyions | noyiez | noient");
  EXPECT_EQ(verb.slot(90), "noie");
}

TEST(envoyer_model, renvoyer_matches_by_its_last_seven_letters) {
  const ByRule verb("renvoyer");
  EXPECT_EQ(verb.tense(0), "renvoie | renvoies | renvoie | renvoyons | renvoyez | renvoient");
  EXPECT_EQ(verb.slot(18), "renverrai");
  EXPECT_EQ(verb.slot(72), "renverrais");
}

TEST(uyer_model, essuyer) {
  const ByRule verb("essuyer");
  EXPECT_EQ(verb.tense(0), "essuie | essuies | essuie | essuyons | essuyez | essuient");
  EXPECT_EQ(verb.slot(18), "essuierai");
}

TEST(ier_model, leaves_the_regular_forms) {
  const ByRule verb("prier");
  EXPECT_EQ(verb.tense(0), "prie | pries | prie | prions | priez | prient");
  EXPECT_EQ(verb.slot(9), "priions");
  EXPECT_EQ(verb.slot(72), "prierais");
}

TEST(eer_model, leaves_the_regular_forms) {
  const ByRule verb("créer");
  EXPECT_EQ(verb.tense(0), "crée | crées | crée | créons | créez | créent");
  EXPECT_EQ(verb.slot(99), "créé");
  EXPECT_EQ(verb.slot(90), "crée");
}

TEST(open_e_model, semer_changes_the_future_too) {
  const ByRule verb("semer");
  EXPECT_EQ(verb.tense(0), "sème | sèmes | sème | semons | semez | sèment");
  EXPECT_EQ(verb.slot(18), "sèmerai");
  EXPECT_EQ(verb.slot(72), "sèmerais");
  EXPECT_EQ(verb.tense(48), "sème | sèmes | sème | semions | semiez | sèment");
  EXPECT_EQ(verb.slot(90), "sème");
  EXPECT_EQ(verb.slot(12), "semai");
}

TEST(open_e_model, sevrer_has_a_group_of_two_consonants) {
  EXPECT_EQ(ByRule("sevrer").tense(0), "sèvre | sèvres | sèvre | sevrons | sevrez | sèvrent");
}

TEST(ecer_model, depecer) {
  const ByRule verb("dépecer");
  EXPECT_EQ(verb.tense(0), "dépèce | dépèces | dépèce | dépeçons | dépecez | dépècent");
  EXPECT_EQ(verb.tense(6), "dépeçais | dépeçais | dépeçait | dépecions | dépeciez | dépeçaient");
  EXPECT_EQ(verb.tense(12), "dépeçai | dépeças | dépeça | dépeçâmes | dépeçâtes | dépecèrent");
  EXPECT_EQ(verb.slot(18), "dépècerai");
  EXPECT_EQ(verb.slot(56), "dépeçât");
  EXPECT_EQ(verb.slot(98), "dépeçant");
}

TEST(eter_model, listed_verbs_open_their_e) {
  for (const std::string_view verb :
       {"bégueter", "acheter", "bouveter", "breveter", "corseter", "crocheter", "fileter",
        "fureter", "haleter", "préacheter", "racheter"}) {
    const std::string stem(verb.substr(0, verb.size() - 4));
    EXPECT_EQ(ByRule(verb).slot(0), stem + "ète");
    EXPECT_EQ(ByRule(verb).slot(18), stem + "èterai");
  }
}

TEST(eter_model, other_verbs_double_their_t) {
  const ByRule verb("jeter");
  EXPECT_EQ(verb.tense(0), "jette | jettes | jette | jetons | jetez | jettent");
  EXPECT_EQ(verb.slot(18), "jetterai");
  EXPECT_EQ(verb.slot(48), "jette");
  EXPECT_EQ(ByRule("rejeter").slot(0), "rejette");
}

TEST(eter_model, compares_the_whole_infinitive) {
  EXPECT_EQ(ByRule("suracheter").slot(0), "surachette")
      << "only racheter and préacheter are listed";
}

TEST(eler_model, listed_verbs_open_their_e) {
  for (const std::string_view verb :
       {"aciseler",   "geler",    "celer",      "ciseler",   "congeler",     "déceler",
        "décongeler", "dégeler",  "démanteler", "écarteler", "embreler",     "épinceler",
        "friseler",   "harceler", "marteler",   "modeler",   "peler",        "receler",
        "recongeler", "regeler",  "remodeler",  "surgeler",  "cyberharceler"}) {
    const std::string stem(verb.substr(0, verb.size() - 4));
    EXPECT_EQ(ByRule(verb).slot(0), stem + "èle");
    EXPECT_EQ(ByRule(verb).slot(5), stem + "èlent");
    EXPECT_EQ(ByRule(verb).slot(18), stem + "èlerai");
  }
}

TEST(eler_model, other_verbs_double_their_l) {
  const ByRule verb("appeler");
  EXPECT_EQ(verb.tense(0), "appelle | appelles | appelle | appelons | appelez | appellent");
  EXPECT_EQ(verb.slot(18), "appellerai");
}

TEST(eler_model, s_encasteler_is_listed_only_with_its_pronoun) {
  EXPECT_EQ(ByRule("s'encasteler").slot(0), "s'encastèle");
  EXPECT_EQ(ByRule("encasteler").slot(0), "encastelle");
}

TEST(eler_model, se_crepeler_is_listed_only_with_its_pronoun) {
  EXPECT_EQ(ByRule("se crêpeler").slot(0), "se crêpèle");
  EXPECT_EQ(ByRule("crêpeler").slot(0), "crêpelle");
}

TEST(rapiecer_model, rapiecer) {
  const ByRule verb("rapiécer");
  EXPECT_EQ(verb.tense(0), "rapièce | rapièces | rapièce | rapiéçons | rapiécez | rapiècent");
  EXPECT_EQ(verb.tense(6),
            "rapiéçais | rapiéçais | rapiéçait | rapiécions | rapiéciez | rapiéçaient");
  EXPECT_EQ(verb.tense(12),
            "rapiéçai | rapiéças | rapiéça | rapiéçâmes | rapiéçâtes | rapiécèrent");
  EXPECT_EQ(verb.slot(18), "rapiécerai");
  EXPECT_EQ(verb.slot(98), "rapiéçant");
}

TEST(rapiecer_model, a_longer_infinitive_gets_the_passe_simple_of_rapiecer_itself) {
  const ByRule verb("dérapiécer");
  EXPECT_EQ(verb.slot(0), "dérapièce");
  EXPECT_EQ(verb.tense(12),
            "rapiéçai | rapiéças | rapiéça | rapiéçâmes | rapiéçâtes | rapiécèrent");
  EXPECT_EQ(verb.slot(54), "rapiéçasse");
  EXPECT_EQ(verb.slot(98), "dérapiéçant");
}

TEST(closed_e_model, the_future_keeps_its_closed_e) {
  const ByRule verb("céder");
  EXPECT_EQ(verb.tense(0), "cède | cèdes | cède | cédons | cédez | cèdent");
  EXPECT_EQ(verb.tense(18), "céderai | céderas | cédera | céderons | céderez | céderont");
  EXPECT_EQ(verb.slot(72), "céderais");
  EXPECT_EQ(verb.tense(48), "cède | cèdes | cède | cédions | cédiez | cèdent");
  EXPECT_EQ(verb.slot(90), "cède");
}

TEST(eger_model, proteger) {
  const ByRule verb("protéger");
  EXPECT_EQ(verb.tense(0), "protège | protèges | protège | protégeons | protégez | protègent");
  EXPECT_EQ(verb.tense(6),
            "protégeais | protégeais | protégeait | protégions | protégiez | protégeaient");
  EXPECT_EQ(verb.tense(12),
            "protégeai | protégeas | protégea | protégeâmes | protégeâtes | protégèrent");
  EXPECT_EQ(verb.slot(18), "protégerai");
  EXPECT_EQ(verb.slot(51), "protégions");
  EXPECT_EQ(verb.slot(56), "protégeât");
  EXPECT_EQ(verb.slot(98), "protégeant");
}

TEST(egne_egue_eque_models, open_their_e_in_the_present_only) {
  EXPECT_EQ(ByRule("régner").tense(0), "règne | règnes | règne | régnons | régnez | règnent");
  EXPECT_EQ(ByRule("léguer").tense(0), "lègue | lègues | lègue | léguons | léguez | lèguent");
  EXPECT_EQ(ByRule("disséquer").tense(0),
            "dissèque | dissèques | dissèque | disséquons | disséquez | dissèquent");
  EXPECT_EQ(ByRule("régner").slot(90), "règne");
  EXPECT_EQ(ByRule("léguer").slot(48), "lègue");
  EXPECT_EQ(ByRule("disséquer").slot(18), "disséquerai");
}

}  // namespace
}  // namespace odmiennik::groups
