// SPDX-License-Identifier: GPL-3.0-or-later
// What the norm says of the verb that is shown.
#include "app/logic/norm_of_verb.h"

#include <gtest/gtest.h>

#include "dictionary/builtin_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/windows1252.h"
#include "groups/rules.h"
#include "tests/support/test_program.h"

namespace odmiennik::app {
namespace {

class norm_of_verb : public ::testing::Test {
 protected:
  void show(const char* verb, bool isAuxiliaryChosen = false) {
    program_.conjugate(verb);
    norm_.compareWith(program_.state(), isAuxiliaryChosen);
  }
  std::string of(int slot) { return testing::utf8(norm_.of(slot)); }
  bool isSilent() {
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      if (!norm_.of(slot).empty()) return false;
    return true;
  }

  odmiennik::testing::TestProgram program_;
  dictionary::GeneralVerbIndex index_;
  dictionary::BuiltinVerbTable builtinVerbs_;
  groups::VerbGroups rules_;
  NormOfVerb norm_{index_, builtinVerbs_, rules_};
};

TEST_F(norm_of_verb, names_the_forms_that_depart_and_no_others) {
  show("lire");
  EXPECT_EQ(of(2), "lit");
  EXPECT_EQ(of(83), "auraient lu");
  EXPECT_EQ(of(0) + of(1) + of(82), "");
}

TEST_F(norm_of_verb, names_the_pronoun_where_that_departs) {
  show("œuvrer");
  EXPECT_EQ(of(0), "j'œuvre");
  EXPECT_EQ(of(1), "");
  show("yodler");
  EXPECT_EQ(of(0), "je yodle");
}

TEST_F(norm_of_verb, names_a_form_that_the_norm_lacks) {
  show("s'agir");
  EXPECT_EQ(of(0), " -- ");
  EXPECT_EQ(of(26), "s'est agi");
}

TEST_F(norm_of_verb, forgets_the_verb_before) {
  show("lire");
  show("finir");
  EXPECT_EQ(of(2), "");
  norm_.forget();
  EXPECT_TRUE(isSilent());
}

TEST_F(norm_of_verb, keeps_to_the_auxiliary_that_was_chosen) {
  show("tomber");
  EXPECT_EQ(of(24), "je suis tombé(e)");
  program_.chooseAuxiliary(engine::kAvoir);
  norm_.compareWith(program_.state(), true);
  EXPECT_EQ(of(24), "");
  EXPECT_EQ(of(83), "auraient tombé");
}

TEST_F(norm_of_verb, says_nothing_of_an_own_verb) {
  program_.addUserVerb({.slots = {{2, "lir"}, {96, "lire"}}});
  show("lire");
  EXPECT_TRUE(isSilent());
}

TEST_F(norm_of_verb, says_nothing_of_the_norm_itself) {
  program_.followNorm();
  show("lire");
  EXPECT_TRUE(isSilent());
}

TEST_F(norm_of_verb, says_nothing_of_a_refused_verb) {
  show("x");
  EXPECT_TRUE(isSilent());
}

}  // namespace
}  // namespace odmiennik::app
