// The Conjugate command from the typed text to the boxes.
#include "engine/driver.h"

#include <gtest/gtest.h>

#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::TestProgram;
using odmiennik::testing::UserRecord;
using Notices = std::vector<Notice>;

TEST(Driver, ConjugatesAKnownVerbWithoutAMessage) {
  TestProgram program;
  EXPECT_EQ(program.conjugate("parler"), Outcome::conjugated);
  EXPECT_EQ(program.boxesOfTense(0), "parle | parles | parle | parlons | parlez | parlent");
  EXPECT_EQ(program.box(24), "ai parlé");
  EXPECT_EQ(program.notices(), Notices{});
  EXPECT_EQ(program.state().source, Source::rule);
}

TEST(Driver, TrimsLowersAndTakesSeLaverAsPronominal) {
  TestProgram program;
  program.conjugate("  Se Laver  ");
  EXPECT_EQ(program.box(0), "me lave");
  EXPECT_EQ(program.box(24), "me suis lavé(e)");
  EXPECT_EQ(program.box(96), "se laver");
  EXPECT_EQ(program.box(99), "lavé(e)");
  EXPECT_EQ(program.information().transitive, Use::no);
  EXPECT_EQ(program.information().intransitive, Use::no);
  EXPECT_EQ(program.information().auxiliary, KnownAuxiliary::etre);
  EXPECT_EQ(program.auxiliary(), kEtre);
}

TEST(Driver, TakesATypographicApostropheForThePlainOne) {
  TestProgram program;
  program.conjugate("S’asseoir");
  EXPECT_EQ(program.box(96), "s'asseoir");
  EXPECT_EQ(program.box(0), "m'assois/assieds");
}

TEST(Driver, RemovesOneReflexivePrefixOnly) {
  TestProgram program;
  program.conjugate("se se laver");
  EXPECT_EQ(program.state().flags.normalizedInput, "se laver");
  EXPECT_EQ(program.slot(96), "se laver") << "it has its prefix, so none is added";
  EXPECT_EQ(program.slot(99), "se lavé(e)");
}

TEST(Driver, TrimsNothingBehindThePrefix) {
  TestProgram program;
  program.conjugate("se  laver");
  EXPECT_EQ(program.state().flags.normalizedInput, " laver");
  EXPECT_EQ(program.slot(96), "se  laver");
}

TEST(Driver, ConjugatesCapitalsWithAccentsAsSmallLetters) {
  TestProgram program;
  program.conjugate("ÊTRE");
  EXPECT_EQ(program.box(0), "suis");
  program.conjugate("ŒUVRER");
  EXPECT_EQ(program.box(0), "œuvre");
  program.conjugate("ÉCOUTER");
  EXPECT_EQ(program.box(0), "écoute");
}

TEST(Driver, ATabOrControlCharacterBelongsToTheInfinitive) {
  TestProgram program;
  EXPECT_EQ(program.conjugate("\tparler"), Outcome::conjugated);
  EXPECT_EQ(program.box(0), "\tparle");
  EXPECT_EQ(program.notices(), Notices{Notice::conjugatedRegularly});
  EXPECT_EQ(program.conjugate("parler\t"), Outcome::refused);
  EXPECT_EQ(program.conjugate("\x01"), Outcome::refused);
}

TEST(Driver, ResetujComesBeforeEverythingElse) {
  TestProgram program;
  program.conjugate("parler");
  const int questions = program.indexQuestions();
  EXPECT_EQ(program.conjugate("  RESETUJ "), Outcome::reset);
  EXPECT_EQ(program.resets(), 1);
  EXPECT_EQ(program.indexQuestions(), questions) << "nothing is looked up";
  EXPECT_EQ(program.state().source, Source::none);
  EXPECT_EQ(program.notices(), Notices{});
}

TEST(Driver, ResetujWithAReflexivePrefixIsAVerbLikeAnyOther) {
  TestProgram program;
  EXPECT_EQ(program.conjugate("se resetuj"), Outcome::refused);
  EXPECT_EQ(program.resets(), 0);
}

TEST(Driver, AnUnknownVerbThatARuleTakesIsConjugatedWithAMessage) {
  TestProgram program;
  program.tellRecord("parler", "");
  EXPECT_EQ(program.conjugate("parler"), Outcome::conjugated);
  EXPECT_EQ(program.box(0), "parle");
  EXPECT_EQ(program.notices(), Notices{Notice::conjugatedRegularly});
  EXPECT_EQ(program.information().group, Group::unknown);
  EXPECT_TRUE(program.information().isAuxiliaryFree);
}

TEST(Driver, AVerbThatNoRuleTakesIsRefused) {
  TestProgram program;
  program.conjugate("parler");
  EXPECT_EQ(program.conjugate("bla"), Outcome::refused);
  EXPECT_EQ(program.notices(), Notices{Notice::notConjugable});
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_EQ(program.box(slot), slot == 96 ? "bla" : " -- ") << slot;
  EXPECT_EQ(program.state().source, Source::none);
  EXPECT_EQ(program.state().model, "");
}

TEST(Driver, ARefusedVerbKeepsTheLabelsOfItsRecord) {
  TestProgram program;
  program.tellRecord("bla", "|4|2|1|2");
  program.conjugate("bla");
  EXPECT_EQ(program.information().group, Group::defective);
  EXPECT_EQ(program.information().auxiliary, KnownAuxiliary::etre);
  EXPECT_EQ(program.auxiliary(), kEtre);
}

TEST(Driver, TheEmptyTextAndAPrefixAloneAreRefused) {
  for (const std::string_view typed : {"", "   ", "se ", "s'", "se", "e", "'"}) {
    TestProgram program;
    EXPECT_EQ(program.conjugate(typed), Outcome::refused) << typed;
    EXPECT_EQ(program.box(0), " -- ") << typed;
  }
}

TEST(Driver, TheEndingsAloneAreConjugated) {
  TestProgram program;
  program.conjugate("er");
  EXPECT_EQ(program.boxesOfTense(0), "e | es | e | ons | ez | ent");
  program.conjugate("ir");
  EXPECT_EQ(program.boxesOfTense(0), "is | is | it | issons | issez | issent");
}

TEST(Driver, TenThousandLettersAreConjugatedLikeOne) {
  TestProgram program;
  const std::string stem(9998, 'x');
  EXPECT_EQ(program.conjugate(stem + "er"), Outcome::conjugated);
  EXPECT_EQ(program.box(3), stem + "ons");
}

TEST(Driver, AUserVerbWinsOverTheBuiltInVerb) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "own form"}, {96, "aller"}}, .auxiliary = kAvoir});
  program.conjugate("aller");
  EXPECT_EQ(program.box(0), "own form");
  EXPECT_EQ(program.state().source, Source::user);
  EXPECT_EQ(program.notices(), Notices{});
}

TEST(Driver, AUserVerbShowsNoDataButItsAuxiliary) {
  TestProgram program;
  program.addUserVerb({.slots = {{96, "parler"}, {99, "parlé"}, {24, "*"}}, .auxiliary = kEtre});
  program.conjugate("parler");
  EXPECT_EQ(program.box(24), "suis parlé(e)");
  EXPECT_EQ(program.information().group, Group::unknown);
  EXPECT_EQ(program.information().transitive, Use::unknown);
  EXPECT_EQ(program.information().intransitive, Use::unknown);
  EXPECT_EQ(program.information().auxiliary, KnownAuxiliary::etre);
  EXPECT_EQ(program.auxiliary(), kEtre);
  EXPECT_TRUE(program.information().isAuxiliaryFree);
}

TEST(Driver, AUserVerbEnteredPronominallyTakesEtreWhateverItsRecordSays) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "lave"}, {96, "laver"}, {99, "lavé"}, {24, "*"}}});
  program.conjugate("se laver");
  EXPECT_EQ(program.box(0), "me lave");
  EXPECT_EQ(program.box(24), "me suis lavé(e)");
  EXPECT_EQ(program.auxiliary(), kEtre);
}

TEST(Driver, AUserVerbIsNotImpersonal) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "pleus"}, {96, "pleuvoir"}}});
  program.conjugate("pleuvoir");
  EXPECT_EQ(program.box(0), "pleus");
}

TEST(Driver, AUserVerbSavedWithCapitalsBlanksOrItsPronounIsFound) {
  for (const std::string_view saved : {"Aimer", " aimer ", "s'aimer", "S’AIMER"}) {
    TestProgram program;
    program.addUserVerb({.slots = {{0, "own"}, {96, std::string(saved)}}});
    program.conjugate("aimer");
    EXPECT_EQ(program.box(0), "own") << saved;
  }
}

TEST(Driver, ThePronominalVerbThatTheUserSavedIsNeverShownWithTwoPronouns) {
  const UserRecord record{.slots = {{0, "me lave"},
                                    {1, "te laves"},
                                    {3, "nous lavons"},
                                    {90, "lave-toi"},
                                    {96, "se laver"}},
                          .auxiliary = kEtre};
  TestProgram program;
  program.addUserVerb(record);
  program.conjugate("se laver");
  EXPECT_EQ(program.box(0), "me lave");
  EXPECT_EQ(program.box(3), "nous lavons");
  EXPECT_EQ(program.box(90), "lave-toi");
  program.conjugate("laver");
  EXPECT_EQ(program.box(0), "lave");
  EXPECT_EQ(program.box(3), "lavons");
  EXPECT_EQ(program.box(90), "lave");
}

TEST(Driver, TheFirstMatchingUserVerbWins) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "other"}, {96, "chanter"}}});
  program.addUserVerb({.slots = {{0, "first"}, {96, "aimer"}}});
  program.addUserVerb({.slots = {{0, "second"}, {96, "aimer"}}});
  program.conjugate("aimer");
  EXPECT_EQ(program.box(0), "first");
}

TEST(Driver, UserVerbsThatDoNotMatchLeaveNoTrace) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "other"}, {100, "other"}, {96, "chanter"}}});
  program.conjugate("parler");
  EXPECT_EQ(program.box(0), "parle");
  EXPECT_EQ(program.box(100), "ayant parlé");
}

TEST(Driver, SlotsThatAModelDoesNotWriteAreEmptyWhateverStoodThere) {
  TestProgram program;
  program.addUserVerb({.slots = {{12, "other"}, {54, "other"}, {96, "chanter"}}});
  program.conjugate("parler");
  program.conjugate("extraire");
  EXPECT_EQ(program.tense(12), " |  |  |  |  | ");
  EXPECT_EQ(program.tense(54), " |  |  |  |  | ");
}

TEST(Driver, ABareCroitreThatIsNotBuiltInIsLeftAlone) {
  TestProgram program;
  program.forgetBuiltinVerbs();
  program.conjugate("parler");
  EXPECT_EQ(program.conjugate("croître"), Outcome::conjugated);
  EXPECT_EQ(program.notices(), Notices{}) << "the index knows it";
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_EQ(program.slot(slot), slot == 96 ? "croître" : "") << slot;
}

TEST(Driver, ABuiltInVerbIsCompleted) {
  TestProgram program;
  program.conjugate("aller");
  EXPECT_EQ(program.state().source, Source::builtin);
  EXPECT_EQ(program.boxesOfTense(0), "vais | vas | va | allons | allez | vont");
  EXPECT_EQ(program.box(27), "sommes allé(e)s");
  for (int slot = 0; slot < kSlotCount; ++slot) EXPECT_NE(program.box(slot), "*") << slot;
}

TEST(Driver, AMissingFormOfABuiltInVerbIsEmptyAndShowsTwoHyphens) {
  TestProgram program;
  program.conjugate("falloir");
  EXPECT_EQ(program.slot(0), "");
  EXPECT_EQ(program.box(0), " -- ");
  EXPECT_EQ(program.box(2), "faut");
}

TEST(Driver, ABuiltInVerbThatCarriesItsPronounIsFoundWithoutIt) {
  for (const std::string_view typed : {"s'ensuivre", "ensuivre"}) {
    TestProgram program;
    program.conjugate(typed);
    EXPECT_EQ(program.state().source, Source::builtin) << typed;
    EXPECT_EQ(program.slot(96), "s'ensuivre") << typed;
  }
}

TEST(Driver, TheHiddenEntriesAreFoundLikeVerbs) {
  for (const std::string_view typed : {"autor", "pozdrowienia"}) {
    TestProgram program;
    EXPECT_EQ(program.conjugate(typed), Outcome::conjugated) << typed;
    EXPECT_EQ(program.state().source, Source::builtin) << typed;
    EXPECT_EQ(program.notices(), Notices{}) << typed;
    EXPECT_EQ(program.slot(96), typed);
  }
}

TEST(Driver, IlsAurainetStandsInSlots77And83OfAvoir) {
  TestProgram program;
  program.conjugate("avoir");
  EXPECT_EQ(program.box(77), "aurainet");
  EXPECT_EQ(program.box(83), "aurainet eu");
}

TEST(Driver, IlsAurainetStandsInSlot83OfEveryVerbWithAvoir) {
  TestProgram program;
  for (const std::string_view verb : {"parler", "finir", "prendre", "savoir"}) {
    program.conjugate(verb);
    EXPECT_EQ(program.box(83), "aurainet " + program.slot(99)) << verb;
  }
}

TEST(Driver, AnImpersonalVerbShowsItsIlFormsInfinitivesAndParticiples) {
  TestProgram program;
  program.conjugate("bruiner");
  for (int slot = 0; slot < kSlotCount; ++slot) {
    const bool isShown = (slot < 89 && slot % 6 == 2) || (slot >= 96 && slot <= 99);
    EXPECT_EQ(program.box(slot) != " -- ", isShown) << slot;
  }
  EXPECT_EQ(program.box(2), "bruine");
  EXPECT_EQ(program.box(26), "a bruiné");
}

TEST(Driver, AnImpersonalMarkEndsWithTheNextConjugation) {
  TestProgram program;
  program.conjugate("bruiner");
  program.conjugate("parler");
  EXPECT_EQ(program.box(0), "parle");
}

TEST(Driver, AVerbMarkedPronominalByItsRecordIsConjugatedPronominally) {
  TestProgram program;
  program.conjugate("absenter");
  EXPECT_EQ(program.box(0), "m'absente");
  EXPECT_EQ(program.box(90), "absente-toi");
  EXPECT_EQ(program.box(93), " -- ");
  EXPECT_EQ(program.box(24), "me suis absenté(e)");
  EXPECT_EQ(program.information().auxiliary, KnownAuxiliary::etre);
  EXPECT_TRUE(program.state().shown.isPronominal);
  EXPECT_FALSE(program.state().flags.isPronominal) << "cleared after the command";
}

TEST(Driver, AMuteHElidesJeAndAnAspiratedOneDoesNot) {
  TestProgram program;
  program.conjugate("habiter");
  EXPECT_EQ(program.pronoun(0), "j'");
  program.conjugate("haïr");
  EXPECT_EQ(program.pronoun(0), "je");
  program.conjugate("se haïr");
  EXPECT_EQ(program.box(0), "me hais");
  program.conjugate("s'habiller");
  EXPECT_EQ(program.box(0), "m'habille");
  EXPECT_EQ(program.pronoun(0), "je");
}

TEST(Driver, FalloirShowsIlNeCroisPasQueAboveItsSubjunctives) {
  TestProgram program;
  program.conjugate("falloir");
  EXPECT_EQ(program.caption(0), "Il ne crois pas que ...");
  EXPECT_EQ(program.caption(3), "Il ne croyais pas que ...");
  program.conjugate("parler");
  EXPECT_EQ(program.caption(0), "Il faut que ...");
}

TEST(Driver, EveryConjugationStartsWithAvoir) {
  TestProgram program;
  program.conjugate("aller");
  program.tellRecord("blaguer", "");
  program.conjugate("blaguer");
  EXPECT_EQ(program.auxiliary(), kAvoir);
  EXPECT_EQ(program.box(24), "ai blagué");
}

TEST(Driver, AnEmptySlotOfAPronominalVerbTakesNoPronoun) {
  TestProgram program;
  program.conjugate("s'ensuivre");
  EXPECT_EQ(program.box(0), " -- ");
  EXPECT_EQ(program.pronoun(0), "je") << "its subject pronoun is chosen all the same";
  EXPECT_EQ(program.box(2), "s'ensuit");
}

TEST(Driver, TheSameVerbTwiceGivesTheSame) {
  TestProgram program;
  program.conjugate("s'asseoir");
  const std::string first = program.boxesOfTense(0) + program.boxesOfTense(96);
  program.conjugate("bla");
  program.conjugate("s'asseoir");
  EXPECT_EQ(program.boxesOfTense(0) + program.boxesOfTense(96), first);
}

}  // namespace
}  // namespace odmiennik::engine
