// SPDX-License-Identifier: GPL-3.0-or-later
// The forms of the third group and of what belongs to none, as a user reads them.
#include <gtest/gtest.h>

#include "shown.h"

namespace odmiennik::end_to_end {
namespace {

TEST(third_group, partir_sortir_dormir_and_servir_are_not_conjugated_like_finir) {
  EXPECT_EQ(Shown("partir").tense(kPresent), "pars | pars | part | partons | partez | partent");
  EXPECT_EQ(Shown("sortir").tense(kPresent), "sors | sors | sort | sortons | sortez | sortent");
  EXPECT_EQ(Shown("dormir").tense(kPresent), "dors | dors | dort | dormons | dormez | dorment");
  EXPECT_EQ(Shown("servir").tense(kPresent), "sers | sers | sert | servons | servez | servent");
}

TEST(third_group, revenir_devenir_and_retenir_have_ien_and_sentir_and_mentir_have_not) {
  EXPECT_EQ(Shown("revenir").box(kPresent), "reviens");
  EXPECT_EQ(Shown("devenir").box(kPresent), "deviens");
  EXPECT_EQ(Shown("retenir").box(kPresent), "retiens");
  EXPECT_EQ(Shown("sentir").box(kPresent), "sens");
  EXPECT_EQ(Shown("mentir").box(kPresent), "mens");
}

TEST(third_group, the_longest_known_ending_decides) {
  const std::pair<const char*, const char*> models[] = {
      {"répandre", "épandre"}, {"apprendre", "prendre"}, {"détruire", "truire"},
      {"conduire", "uire"},    {"reluire", "luire"},     {"conclure", "clure"},
      {"accroître", "croître"}};
  for (const auto& [verb, model] : models)
    EXPECT_TRUE(Shown(verb).has("model", "\"" + std::string(model) + "\"")) << verb;
}

TEST(third_group, apprendre) {
  const Shown verb("apprendre");
  EXPECT_EQ(verb.tense(kPresent),
            "apprends | apprends | apprend | apprenons | apprenez | apprennent");
  EXPECT_EQ(verb.box(kFuture), "apprendrai");
  EXPECT_EQ(verb.box(kPastHistoric), "appris");
  EXPECT_EQ(verb.box(kPastParticiple), "appris");
}

TEST(third_group, recevoir) {
  const Shown verb("recevoir");
  EXPECT_EQ(verb.tense(kPresent), "reçois | reçois | reçoit | recevons | recevez | reçoivent");
  EXPECT_EQ(verb.box(kFuture), "recevrai");
  EXPECT_EQ(verb.box(kPastHistoric), "reçus");
  EXPECT_EQ(verb.box(kPastParticiple), "reçu");
}

TEST(third_group, revenir) {
  const Shown verb("revenir");
  EXPECT_EQ(verb.box(kFuture), "reviendrai");
  EXPECT_EQ(verb.tense(kPastHistoric),
            "revins | revins | revint | revînmes | revîntes | revinrent");
  EXPECT_EQ(verb.box(kImperfectSubjunctive + kIl), "revînt");
  EXPECT_EQ(verb.box(kPastParticiple), "revenu(e)");
}

TEST(third_group, peindre) {
  const Shown verb("peindre");
  EXPECT_EQ(verb.box(kPresent), "peins");
  EXPECT_EQ(verb.box(kPresent + kNous), "peignons");
  EXPECT_EQ(verb.box(kPastHistoric), "peignis");
  EXPECT_EQ(verb.box(kPastParticiple), "peint");
}

TEST(third_group, vivre_and_survivre) {
  EXPECT_EQ(Shown("vivre").box(kPastParticiple), "vécu");
  EXPECT_EQ(Shown("survivre").box(kPastParticiple), "survécu");
  EXPECT_EQ(Shown("vivre").box(kPastHistoric), "vécus");
}

TEST(third_group, asseoir_has_two_spellings_of_every_form_of_the_present) {
  EXPECT_EQ(Shown("asseoir").tense(kPresent),
            "assois/assieds | assois/assieds | assoit/assied | assoyons/asseyons | "
            "assoyez/asseyez | assoient/asseyent");
}

TEST(third_group, vouloir_has_two_imperatives) {
  EXPECT_EQ(Shown("vouloir").box(kImperative), "veuille/veux");
}

TEST(third_group, traire_has_no_past_historic) {
  const Shown verb("traire");
  EXPECT_EQ(verb.tense(kPastHistoric), " --  |  --  |  --  |  --  |  --  |  -- ");
  EXPECT_EQ(verb.tense(kImperfectSubjunctive), " --  |  --  |  --  |  --  |  --  |  -- ");
}

TEST(third_group, with_etre_a_double_participle_is_marked_too) {
  EXPECT_EQ(Shown(std::string("apprendre") + kWithEtre).box(kPastParticiple), "appris(e)");
  EXPECT_EQ(Shown(std::string("devoir") + kWithEtre).box(kPastParticiple), "dû, due(e)");
}

// deliberate: some endings claim verbs that a grammar gives to another group, and some forms keep
// a spelling that no grammar has.
TEST(third_group, deliberate_endings_claim_verbs_of_other_groups) {
  EXPECT_EQ(Shown("ralentir").box(kPresent), "ralens");
  EXPECT_EQ(Shown("répartir").box(kPresent), "répars");
  EXPECT_EQ(Shown("narguer").box(kPresent), "narguë");
}

TEST(third_group, deliberate_verbs_in_uire_double_the_i_of_their_past_historic) {
  for (const std::string verb : {"conduire", "détruire", "nuire", "reluire"}) {
    const std::string stem = verb.substr(0, verb.size() - 2);
    EXPECT_EQ(Shown(verb).box(kPastHistoric), stem + "is") << verb;
    EXPECT_EQ(Shown(verb).box(kImperfectSubjunctive), stem + "isse") << verb;
  }
}

TEST(third_group, deliberate_verbs_like_saillir_build_their_future_on_the_infinitive) {
  EXPECT_EQ(Shown("assaillir").box(kFuture), "assaillirai");
}

TEST(third_group, an_infinitive_in_oir_or_re_that_no_model_claims_is_refused) {
  for (const char* verb : {"gloir", "zoir", "bafre", "bazre"})
    EXPECT_TRUE(Shown(verb).has("messages", messages(kNotConjugable))) << verb;
}

TEST(refused_verb, has_no_form_at_all) {
  const Shown verb("bla");
  for (int slot = 0; slot < 101; ++slot)
    EXPECT_EQ(verb.box(slot), slot == 96 ? "bla" : " -- ") << slot;
  EXPECT_TRUE(verb.has("source", "\"none\""));
}

TEST(refused_verb, is_not_refused_while_it_is_edited) {
  const Shown verb("bla", {"--edit"});
  EXPECT_TRUE(verb.has("messages", messages(kConjugatedRegularly)));
  for (int slot = 0; slot < 101; ++slot) EXPECT_EQ(verb.box(slot), slot == 96 ? "bla" : "") << slot;
}

TEST(built_in_verb, shows_two_dashes_where_it_has_no_form) {
  const Shown verb("falloir");
  EXPECT_EQ(verb.tense(kPresent), " --  |  --  | faut |  --  |  --  |  -- ");
  EXPECT_EQ(verb.box(26), "a fallu");
}

TEST(built_in_verb, has_two_hidden_ones_among_it) {
  for (const char* name : {"autor", "pozdrowienia"}) {
    const Shown verb(name);
    EXPECT_TRUE(verb.has("source", "\"builtin\"")) << name;
    EXPECT_TRUE(verb.has("messages", messages())) << name;
    EXPECT_EQ(verb.box(96), name);
    EXPECT_NE(verb.box(0), " -- ") << name;
  }
}

}  // namespace
}  // namespace odmiennik::end_to_end
