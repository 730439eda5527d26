// SPDX-License-Identifier: GPL-3.0-or-later
// Edit mode: the table as the starting point of editing.
#include <gtest/gtest.h>

#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::TestProgram;
using Notices = std::vector<Notice>;

TEST(edit_mode, leaves_the_placeholders_of_a_stored_verb) {
  TestProgram program;
  program.addUserVerb({.slots = {{6, "*"}, {24, "*"}, {96, "parler"}, {99, "parlé"}}});
  program.edit("parler");
  EXPECT_EQ(program.box(6), "*");
  EXPECT_EQ(program.box(24), "*");
}

TEST(edit_mode, leaves_the_placeholders_of_a_built_in_verb) {
  TestProgram program;
  program.edit("aller");
  EXPECT_EQ(program.box(24), "*");
}

TEST(user_verb, is_told_with_the_infinitive_of_its_record) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "lave"}, {96, "laver"}}});
  program.conjugate("se laver");
  EXPECT_EQ(program.box(96), "se laver");
  EXPECT_EQ(program.state().storedInfinitive, "laver");
  program.conjugate("aller");
  EXPECT_EQ(program.state().storedInfinitive, "");
}

TEST(edit_mode, shows_nothing_in_empty_boxes) {
  TestProgram program;
  program.edit("falloir");
  EXPECT_EQ(program.box(0), "");
}

TEST(edit_mode, refuses_no_ending) {
  TestProgram program;
  EXPECT_EQ(program.edit("bla"), Outcome::conjugated);
  EXPECT_EQ(program.box(96), "bla");
  EXPECT_EQ(program.box(0), "");
  EXPECT_EQ(program.notices(), Notices{Notice::conjugatedRegularly});
}

TEST(edit_mode, leaves_nothing_of_the_verb_shown_before) {
  TestProgram program;
  program.conjugate("parler");
  program.edit("bla");
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_EQ(program.slot(slot), slot == 96 ? "bla" : "") << slot;
}

TEST(edit_mode, shows_no_message_for_a_new_verb) {
  for (const std::string_view typed : {"", "   ", "s'", " S’ "}) {
    TestProgram program;
    program.edit(typed);
    EXPECT_EQ(program.notices(), Notices{}) << typed;
  }
}

TEST(edit_mode, takes_se_with_nothing_behind_it_for_a_verb) {
  TestProgram program;
  program.edit("se ");
  EXPECT_EQ(program.box(96), "se") << "trimming leaves no prefix";
  EXPECT_EQ(program.notices(), Notices{Notice::conjugatedRegularly});
}

TEST(edit_mode, shows_the_message_for_an_unknown_verb) {
  TestProgram program;
  program.edit("trululer");
  EXPECT_EQ(program.notices(), Notices{Notice::conjugatedRegularly});
}

TEST(edit_mode, enables_the_auxiliary_box_whatever_the_record_says) {
  TestProgram program;
  program.edit("parler");
  EXPECT_TRUE(program.information().isAuxiliaryFree);
}

TEST(edit_mode, keeps_the_auxiliary_of_the_verb_that_is_shown) {
  TestProgram program;
  program.tellRecord("trululer", "");
  program.conjugate("trululer");
  program.chooseAuxiliary(kEtre);
  program.edit("trululer");
  EXPECT_EQ(program.state().flags.auxiliary, kEtre);
  EXPECT_EQ(program.box(24), "suis trululé(e)");
}

TEST(edit_mode, keeps_the_auxiliary_chosen_of_two) {
  TestProgram program;
  program.tellRecord("trululer", "|1|1|1|3");
  program.conjugate("trululer");
  program.chooseAuxiliary(kEtre);
  program.edit("trululer");
  EXPECT_EQ(program.state().flags.auxiliary, kEtre);
  EXPECT_EQ(program.auxiliary(), kEtre);
  EXPECT_EQ(program.box(24), "suis trululé(e)");
}

TEST(edit_mode, takes_the_auxiliary_of_a_verb_that_has_but_one) {
  TestProgram program;
  program.tellRecord("trululer", "|1|1|1|1");
  program.conjugate("se trululer");
  program.edit("trululer");
  EXPECT_EQ(program.state().flags.auxiliary, kAvoir);
}

TEST(edit_mode, starts_with_avoir_for_another_verb) {
  TestProgram program;
  program.conjugate("aller");
  program.edit("trululer");
  EXPECT_EQ(program.state().flags.auxiliary, kAvoir);
  EXPECT_EQ(program.auxiliary(), kAvoir);
  EXPECT_EQ(program.box(24), "ai trululé");
}

TEST(edit_mode, fills_every_compound_box) {
  TestProgram program;
  program.conjugate("bla");
  program.edit("trululer");
  for (const int slot : {24, 47, 60, 78, 89, 93, 97, 100}) EXPECT_NE(program.box(slot), "") << slot;
}

TEST(edit_mode, adds_reflexive_pronouns_and_clears_the_flag) {
  TestProgram program;
  program.edit("se laver");
  EXPECT_EQ(program.box(0), "me lave");
  EXPECT_FALSE(program.state().flags.isPronominal);
}

}  // namespace
}  // namespace odmiennik::engine
