// The builders of the simple tenses.
#include "engine/simple_tenses.h"

#include <gtest/gtest.h>

#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::french;

FormTable tableWith(std::initializer_list<std::pair<int, std::string_view>> slots) {
  FormTable forms;
  for (const auto& [slot, text] : slots) forms[slot] = french(text);
  return forms;
}

std::string row(const FormTable& forms, int first, int count = 6) {
  std::string texts;
  for (int i = 0; i < count; ++i)
    texts.append(i == 0 ? "" : " | ").append(toUtf8(forms[first + i]));
  return texts;
}

TEST(SimpleTenses, TheImperfectIsStemAndEndings) {
  FormTable forms;
  buildImperfect(forms, "parl");
  EXPECT_EQ(row(forms, 6), "parlais | parlais | parlait | parlions | parliez | parlaient");
}

TEST(SimpleTenses, TheFutureIsStemAndEndings) {
  FormTable forms;
  buildFuture(forms, "parler");
  EXPECT_EQ(row(forms, 18), "parlerai | parleras | parlera | parlerons | parlerez | parleront");
}

TEST(SimpleTenses, ABuilderWritesOnlyItsOwnSlots) {
  FormTable forms;
  buildImperfect(forms, "x");
  buildFuture(forms, "x");
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_EQ(forms[slot].empty(), slot < 6 || slot >= 24 || (slot >= 12 && slot < 18)) << slot;
}

TEST(SimpleTenses, TheImperativeCopiesNousAndVousAndDropsTheSOfEs) {
  FormTable forms = tableWith({{1, "parles"}, {3, "parlons"}, {4, "parlez"}});
  buildImperative(forms);
  EXPECT_EQ(row(forms, 90, 3), "parle | parlons | parlez");
}

TEST(SimpleTenses, TheImperativeOfVasIsVas) {
  FormTable forms = tableWith({{1, "vas"}, {3, "allons"}, {4, "allez"}});
  buildImperative(forms);
  EXPECT_EQ(row(forms, 90, 3), "vas | allons | allez");
}

TEST(SimpleTenses, TheImperativeDropsTheSAlsoBehindEDiaeresisAndAcuteE) {
  FormTable forms = tableWith({{1, "arguës"}});
  buildImperative(forms);
  EXPECT_EQ(toUtf8(forms[90]), "arguë");
  forms[1] = french("crés");
  buildImperative(forms);
  EXPECT_EQ(toUtf8(forms[90]), "cré");
}

TEST(SimpleTenses, TheImperativeKeepsOtherFinalLetters) {
  for (const std::string_view tu : {"finis", "prends", "dors", "vèts", "èx", "sème", "è", "vêts"}) {
    FormTable forms = tableWith({{1, tu}});
    buildImperative(forms);
    EXPECT_EQ(toUtf8(forms[90]), tu);
  }
}

TEST(SimpleTenses, AGraveOrCircumflexEKeepsItsS) {
  for (const std::string_view tu : {"xès", "xês"}) {
    FormTable forms = tableWith({{1, tu}});
    buildImperative(forms);
    EXPECT_EQ(toUtf8(forms[90]), tu);
  }
}

TEST(SimpleTenses, ThePresentSubjunctiveFollowsIls) {
  FormTable forms = tableWith({{5, "prennent"}, {9, "prenions"}, {10, "preniez"}});
  buildPresentSubjunctive(forms);
  EXPECT_EQ(row(forms, 48), "prenne | prennes | prenne | prenions | preniez | prennent");
}

TEST(SimpleTenses, ThePresentSubjunctiveCopiesAnIrregularImperfect) {
  FormTable forms = tableWith({{5, "aillent"}, {9, "irrégulions"}, {10, "irréguliez"}});
  buildPresentSubjunctive(forms);
  EXPECT_EQ(toUtf8(forms[51]), "irrégulions");
  EXPECT_EQ(toUtf8(forms[52]), "irréguliez");
}

TEST(SimpleTenses, ThePresentSubjunctiveTreatsDoubleFormsVariantByVariant) {
  FormTable forms = tableWith({{5, "payent/paient"}, {9, "payions"}, {10, "payiez"}});
  buildPresentSubjunctive(forms);
  EXPECT_EQ(row(forms, 48),
            "paye/paie | payes/paies | paye/paie | payions | payiez | payent/paient");
}

TEST(SimpleTenses, TheConditionalFollowsTheFuture) {
  FormTable forms = tableWith({{18, "parlerai"}});
  buildConditional(forms);
  EXPECT_EQ(row(forms, 72),
            "parlerais | parlerais | parlerait | parlerions | parleriez | parleraient");
}

TEST(SimpleTenses, TheConditionalTreatsDoubleFormsVariantByVariant) {
  FormTable forms = tableWith({{18, "payerai/paierai"}});
  buildConditional(forms);
  EXPECT_EQ(row(forms, 72),
            "payerais/paierais | payerais/paierais | payerait/paierait | payerions/paierions | "
            "payeriez/paieriez | payeraient/paieraient");
}

TEST(SimpleTenses, AnEmptyFutureLeavesTheConditionalAsItWas) {
  FormTable forms = tableWith({{72, "*"}, {73, "kept"}});
  buildConditional(forms);
  EXPECT_EQ(row(forms, 72), "* | kept |  |  |  | ");
}

TEST(SimpleTenses, ThePastHistoricTakesAEndingsForAnInfinitiveInEr) {
  FormTable forms = tableWith({{96, "parler"}});
  buildPastHistoric(forms);
  EXPECT_EQ(row(forms, 12), "parlai | parlas | parla | parlâmes | parlâtes | parlèrent");
}

TEST(SimpleTenses, ThePastHistoricTakesIEndingsForAnyOtherInfinitive) {
  FormTable forms = tableWith({{96, "rendre"}});
  buildPastHistoric(forms);
  EXPECT_EQ(row(forms, 12), "rendis | rendis | rendit | rendîmes | rendîtes | rendirent");
}

TEST(SimpleTenses, ThePastHistoricTakesTheEndingsAndBaseThatItIsGiven) {
  FormTable forms = tableWith({{96, "parler"}});
  buildPastHistoric(forms, PastEndings::u, "conn");
  EXPECT_EQ(row(forms, 12), "connus | connus | connut | connûmes | connûtes | connurent");
}

TEST(SimpleTenses, APastHistoricWithEndingsOnlyTakesTheInfinitiveLessTwoLetters) {
  FormTable forms = tableWith({{96, "courir"}});
  buildPastHistoric(forms, PastEndings::u);
  EXPECT_EQ(row(forms, 12), "courus | courus | courut | courûmes | courûtes | coururent");
}

TEST(SimpleTenses, AnEmptyBaseIsABase) {
  FormTable forms = tableWith({{96, "croire"}});
  buildPastHistoric(forms, PastEndings::u, "");
  EXPECT_EQ(row(forms, 12), "us | us | ut | ûmes | ûtes | urent");
}

TEST(SimpleTenses, TreatsAnInfinitiveShorterThanTheCutAsEmpty) {
  FormTable forms = tableWith({{96, "x"}});
  buildPastHistoric(forms);
  EXPECT_EQ(row(forms, 12), "is | is | it | îmes | îtes | irent");
}

TEST(SimpleTenses, ThePresentParticipleFollowsNous) {
  FormTable forms = tableWith({{3, "mangeons"}});
  buildPresentParticiple(forms);
  EXPECT_EQ(forms[98], "mangeant");
}

TEST(SimpleTenses, WithoutNousThePresentParticipleStaysAsItWas) {
  FormTable forms = tableWith({{98, "*"}});
  buildPresentParticiple(forms);
  EXPECT_EQ(forms[98], "*");
}

TEST(SimpleTenses, TheParticipleBuilderTreatsADoubleFormAsOneText) {
  FormTable forms = tableWith({{3, "payons/paions"}});
  buildPresentParticiple(forms);
  EXPECT_EQ(forms[98], "payons/paiant");
}

TEST(SimpleTenses, TheImperfectSubjunctiveFollowsThePastHistoric) {
  FormTable forms = tableWith({{12, "parlai"}, {15, "parlâmes"}});
  buildImperfectSubjunctive(forms);
  EXPECT_EQ(row(forms, 54),
            "parlasse | parlasses | parlât | parlassions | parlassiez | parlassent");
}

TEST(SimpleTenses, OnlyIlOfTheImperfectSubjunctiveTakesTheCircumflexedVowel) {
  FormTable forms = tableWith({{12, "finis"}, {15, "finîmes"}});
  buildImperfectSubjunctive(forms);
  EXPECT_EQ(row(forms, 54), "finisse | finisses | finît | finissions | finissiez | finissent");
}

TEST(SimpleTenses, WithoutAPastHistoricTheImperfectSubjunctiveStaysAsItWas) {
  FormTable forms = tableWith({{15, "x"}, {54, "*"}});
  buildImperfectSubjunctive(forms);
  EXPECT_EQ(forms[54], "*");
  EXPECT_EQ(forms[55], "");
}

TEST(SimpleTenses, ShortPastHistoricsDoNoHarm) {
  for (const std::string_view je : {"a", "ab", "abc"})
    for (const std::string_view nous : {"", "a", "abc", "abcd"}) {
      FormTable forms = tableWith({{12, je}, {15, nous}});
      buildImperfectSubjunctive(forms);
      EXPECT_TRUE(forms[54].ends_with("sse"));
    }
}

}  // namespace
}  // namespace odmiennik::engine
