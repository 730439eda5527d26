// Edit mode: the table as the starting point of editing.
#include <gtest/gtest.h>

#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::TestProgram;
using Notices = std::vector<Notice>;

TEST(EditMode, LeavesThePlaceholdersOfAStoredVerb) {
  TestProgram program;
  program.addUserVerb({.slots = {{6, "*"}, {24, "*"}, {96, "parler"}, {99, "parlé"}}});
  program.edit("parler");
  EXPECT_EQ(program.box(6), "*");
  EXPECT_EQ(program.box(24), "*");
}

TEST(EditMode, LeavesThePlaceholdersOfABuiltInVerb) {
  TestProgram program;
  program.edit("aller");
  EXPECT_EQ(program.box(24), "*");
}

TEST(UserVerb, IsToldWithTheInfinitiveOfItsRecord) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "lave"}, {96, "laver"}}});
  program.conjugate("se laver");
  EXPECT_EQ(program.box(96), "se laver");
  EXPECT_EQ(program.state().storedInfinitive, "laver");
  program.conjugate("aller");
  EXPECT_EQ(program.state().storedInfinitive, "");
}

TEST(EditMode, ShowsNothingInEmptyBoxes) {
  TestProgram program;
  program.edit("falloir");
  EXPECT_EQ(program.box(0), "");
}

TEST(EditMode, RefusesNoEnding) {
  TestProgram program;
  EXPECT_EQ(program.edit("bla"), Outcome::conjugated);
  EXPECT_EQ(program.box(96), "bla");
  EXPECT_EQ(program.box(0), "");
  EXPECT_EQ(program.notices(), Notices{Notice::conjugatedRegularly});
}

TEST(EditMode, LeavesNothingOfTheVerbShownBefore) {
  TestProgram program;
  program.conjugate("parler");
  program.edit("bla");
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_EQ(program.slot(slot), slot == 96 ? "bla" : "") << slot;
}

TEST(EditMode, ShowsNoMessageForANewVerb) {
  for (const std::string_view typed : {"", "   ", "s'", " S’ "}) {
    TestProgram program;
    program.edit(typed);
    EXPECT_EQ(program.notices(), Notices{}) << typed;
  }
}

TEST(EditMode, TakesSeWithNothingBehindItForAVerb) {
  TestProgram program;
  program.edit("se ");
  EXPECT_EQ(program.box(96), "se") << "trimming leaves no prefix";
  EXPECT_EQ(program.notices(), Notices{Notice::conjugatedRegularly});
}

TEST(EditMode, ShowsTheMessageForAnUnknownVerb) {
  TestProgram program;
  program.edit("trululer");
  EXPECT_EQ(program.notices(), Notices{Notice::conjugatedRegularly});
}

TEST(EditMode, EnablesTheAuxiliaryBoxWhateverTheRecordSays) {
  TestProgram program;
  program.edit("parler");
  EXPECT_TRUE(program.information().isAuxiliaryFree);
}

TEST(EditMode, KeepsTheAuxiliaryOfTheVerbThatIsShown) {
  TestProgram program;
  program.tellRecord("trululer", "");
  program.conjugate("trululer");
  program.chooseAuxiliary(kEtre);
  program.edit("trululer");
  EXPECT_EQ(program.state().flags.auxiliary, kEtre);
  EXPECT_EQ(program.box(24), "suis trululé(e)");
}

TEST(EditMode, KeepsTheAuxiliaryChosenOfTwo) {
  TestProgram program;
  program.tellRecord("trululer", "|1|1|1|3");
  program.conjugate("trululer");
  program.chooseAuxiliary(kEtre);
  program.edit("trululer");
  EXPECT_EQ(program.state().flags.auxiliary, kEtre);
  EXPECT_EQ(program.auxiliary(), kEtre);
  EXPECT_EQ(program.box(24), "suis trululé(e)");
}

TEST(EditMode, TakesTheAuxiliaryOfAVerbThatHasButOne) {
  TestProgram program;
  program.tellRecord("trululer", "|1|1|1|1");
  program.conjugate("se trululer");
  program.edit("trululer");
  EXPECT_EQ(program.state().flags.auxiliary, kAvoir);
}

TEST(EditMode, StartsWithAvoirForAnotherVerb) {
  TestProgram program;
  program.conjugate("aller");
  program.edit("trululer");
  EXPECT_EQ(program.state().flags.auxiliary, kAvoir);
  EXPECT_EQ(program.auxiliary(), kAvoir);
  EXPECT_EQ(program.box(24), "ai trululé");
}

TEST(EditMode, FillsEveryCompoundBox) {
  TestProgram program;
  program.conjugate("bla");
  program.edit("trululer");
  for (const int slot : {24, 47, 60, 78, 89, 93, 97, 100}) EXPECT_NE(program.box(slot), "") << slot;
}

TEST(EditMode, AddsReflexivePronounsAndClearsTheFlag) {
  TestProgram program;
  program.edit("se laver");
  EXPECT_EQ(program.box(0), "me lave");
  EXPECT_FALSE(program.state().flags.isPronominal);
}

}  // namespace
}  // namespace odmiennik::engine
