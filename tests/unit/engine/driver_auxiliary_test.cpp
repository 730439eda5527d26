// SPDX-License-Identifier: GPL-3.0-or-later
// The click on the auxiliary's check box.
#include <gtest/gtest.h>

#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::TestProgram;

TEST(auxiliary_click, redisplays_the_compound_tenses_with_the_other_auxiliary) {
  TestProgram program;
  program.conjugate("parler");
  program.chooseAuxiliary(kEtre);
  EXPECT_EQ(program.box(24), "suis parlé(e)");
  EXPECT_EQ(program.box(29), "sont parlé(e)s");
  EXPECT_EQ(program.box(97), "être parlé(e)");
  EXPECT_EQ(program.auxiliary(), kEtre);
  program.chooseAuxiliary(kAvoir);
  EXPECT_EQ(program.box(24), "ai parlé");
  EXPECT_EQ(program.box(83), "aurainet parlé");
}

TEST(auxiliary_click, leaves_the_simple_tenses_and_the_participle) {
  TestProgram program;
  program.conjugate("parler");
  program.chooseAuxiliary(kEtre);
  EXPECT_EQ(program.box(0), "parle");
  EXPECT_EQ(program.box(99), "parlé");
}

TEST(auxiliary_click, removes_the_marker_of_a_participle_stored_with_it) {
  TestProgram program;
  program.addUserVerb({.slots = {{24, "*"}, {96, "aller"}, {99, "allé(e)"}}, .auxiliary = kEtre});
  program.conjugate("aller");
  EXPECT_EQ(program.box(24), "suis allé(e)");
  program.chooseAuxiliary(kAvoir);
  EXPECT_EQ(program.box(24), "ai allé");
}

TEST(auxiliary_click, leaves_forms_that_the_verb_lacks_empty) {
  TestProgram program;
  program.conjugate("falloir");
  program.chooseAuxiliary(kEtre);
  EXPECT_EQ(program.box(24), " -- ");
  EXPECT_EQ(program.box(26), "est fallu(e)");
}

TEST(auxiliary_click, while_editing_only_changes_the_flag) {
  TestProgram program;
  program.edit("parler");
  program.chooseAuxiliary(kEtre, true);
  EXPECT_EQ(program.state().flags.auxiliary, kEtre);
  EXPECT_EQ(program.auxiliary(), kEtre);
  EXPECT_EQ(program.box(24), "ai parlé");
}

TEST(auxiliary_click, leaves_the_label_as_it_was) {
  TestProgram program;
  program.conjugate("parler");
  program.chooseAuxiliary(kEtre);
  EXPECT_EQ(program.information().auxiliary, KnownAuxiliary::avoir);
}

TEST(auxiliary_click, shows_a_pronominal_verb_without_its_pronouns) {
  TestProgram program;
  program.conjugate("se laver");
  program.chooseAuxiliary(kAvoir);
  EXPECT_EQ(program.box(0), "lave");
  EXPECT_EQ(program.slot(0), "me lave");
  EXPECT_EQ(program.box(24), "ai lavé");
  EXPECT_EQ(program.box(93), " -- ");
}

}  // namespace
}  // namespace odmiennik::engine
