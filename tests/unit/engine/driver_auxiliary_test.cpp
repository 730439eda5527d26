// The click on the auxiliary's check box.
#include <gtest/gtest.h>

#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::TestProgram;

TEST(AuxiliaryClick, RedisplaysTheCompoundTensesWithTheOtherAuxiliary) {
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

TEST(AuxiliaryClick, LeavesTheSimpleTensesAndTheParticiple) {
  TestProgram program;
  program.conjugate("parler");
  program.chooseAuxiliary(kEtre);
  EXPECT_EQ(program.box(0), "parle");
  EXPECT_EQ(program.box(99), "parlé");
}

TEST(AuxiliaryClick, RemovesTheMarkerOfAParticipleStoredWithIt) {
  TestProgram program;
  program.addUserVerb({.slots = {{24, "*"}, {96, "aller"}, {99, "allé(e)"}}, .auxiliary = kEtre});
  program.conjugate("aller");
  EXPECT_EQ(program.box(24), "suis allé(e)");
  program.chooseAuxiliary(kAvoir);
  EXPECT_EQ(program.box(24), "ai allé");
}

TEST(AuxiliaryClick, LeavesFormsThatTheVerbLacksEmpty) {
  TestProgram program;
  program.conjugate("falloir");
  program.chooseAuxiliary(kEtre);
  EXPECT_EQ(program.box(24), " -- ");
  EXPECT_EQ(program.box(26), "est fallu(e)");
}

TEST(AuxiliaryClick, WhileEditingOnlyChangesTheFlag) {
  TestProgram program;
  program.edit("parler");
  program.chooseAuxiliary(kEtre, true);
  EXPECT_EQ(program.state().flags.auxiliary, kEtre);
  EXPECT_EQ(program.auxiliary(), kEtre);
  EXPECT_EQ(program.box(24), "ai parlé");
}

TEST(AuxiliaryClick, LeavesTheLabelAsItWas) {
  TestProgram program;
  program.conjugate("parler");
  program.chooseAuxiliary(kEtre);
  EXPECT_EQ(program.information().auxiliary, KnownAuxiliary::avoir);
}

TEST(AuxiliaryClick, ShowsAPronominalVerbWithoutItsPronouns) {
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
