// Trimming, lower case and the reflexive prefix.
#include "engine/normalization.h"

#include <gtest/gtest.h>

#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::french;

std::string normalized(std::string_view utf8) {
  std::string out = "left over from the last verb";
  normalize(french(utf8), out);
  return toUtf8(out);
}

TEST(Normalization, BlanksAtBothEndsAreTrimmed) {
  EXPECT_EQ(normalized("   laver "), "laver");
  EXPECT_EQ(normalized("     "), "");
  EXPECT_EQ(normalized(""), "");
}

TEST(Normalization, BlanksInsideStay) { EXPECT_EQ(normalized(" se  laver "), "se  laver"); }

TEST(Normalization, OnlyTheOrdinaryBlankIsTrimmed) {
  EXPECT_EQ(normalized("\tlaver\t"), "\tlaver\t");
  EXPECT_EQ(normalized("laver\n"), "laver\n");
  EXPECT_EQ(normalized("\u00A0laver\u00A0"), "\u00A0laver\u00A0");
}

TEST(Normalization, EveryCapitalOfWindows1252BecomesSmall) {
  EXPECT_EQ(normalized("ABCXYZ"), "abcxyz");
  EXPECT_EQ(normalized("ÀÂÄÇÈÉÊËÎÏÔÖÙÛÜÆ"), "àâäçèéêëîïôöùûüæ");
  EXPECT_EQ(normalized("ŒUVRER"), "œuvrer");
  EXPECT_EQ(normalized("ŠŽŸÞÝ"), "šžÿþý");
}

TEST(Normalization, WhatIsNoCapitalStays) { EXPECT_EQ(normalized("×ß÷ÿœ@[`{0-9"), "×ß÷ÿœ@[`{0-9"); }

TEST(Normalization, LowerCaseChangesExactlyTheCapitals) {
  int changed = 0;
  for (int byte = 0; byte < 256; ++byte) {
    std::string letter(1, static_cast<char>(byte));
    lowerCase(letter);
    changed += letter[0] != static_cast<char>(byte);
  }
  EXPECT_EQ(changed, 26 + 30 + 4);  // A-Z, À-Þ without ×, and Š Œ Ž Ÿ
}

TEST(Normalization, ATypographicApostropheIsReadAsThePlainOne) {
  EXPECT_EQ(normalized("S’Asseoir"), "s'asseoir");
}

TEST(Normalization, OtherQuotationMarksStay) { EXPECT_EQ(normalized("s‘asseoir"), "s‘asseoir"); }

TEST(ReflexivePrefix, IsSeWithABlankOrSWithAnApostrophe) {
  EXPECT_TRUE(hasReflexivePrefix("se laver"));
  EXPECT_TRUE(hasReflexivePrefix("s'asseoir"));
  EXPECT_TRUE(hasReflexivePrefix("se "));
  EXPECT_TRUE(hasReflexivePrefix("s'"));
}

TEST(ReflexivePrefix, IsNotTheBeginningOfAVerb) {
  for (const std::string_view verb : {"semer", "servir", "s", "se", "", "Se laver", "se\tlaver"})
    EXPECT_FALSE(hasReflexivePrefix(verb)) << verb;
}

TEST(ReflexivePrefix, IsRemoved) {
  EXPECT_EQ(withoutReflexivePrefix("se laver"), "laver");
  EXPECT_EQ(withoutReflexivePrefix("s'asseoir"), "asseoir");
  EXPECT_EQ(withoutReflexivePrefix("semer"), "semer");
}

TEST(ReflexivePrefix, IsRemovedOnlyOnce) {
  EXPECT_EQ(withoutReflexivePrefix("se se laver"), "se laver");
  EXPECT_EQ(withoutReflexivePrefix("s'se laver"), "se laver");
  EXPECT_EQ(withoutReflexivePrefix("se s'asseoir"), "s'asseoir");
}

TEST(ReflexivePrefix, AloneLeavesTheEmptyText) {
  EXPECT_EQ(withoutReflexivePrefix("se "), "");
  EXPECT_EQ(withoutReflexivePrefix("s'"), "");
}

TEST(LookupKey, IgnoresBlanksCaseAndReflexivePrefix) {
  EXPECT_EQ(lookupKey("  Aimer "), "aimer");
  EXPECT_EQ(lookupKey("S'Ensuivre"), "ensuivre");
  EXPECT_EQ(lookupKey(french("Se LAVER")), "laver");
}

}  // namespace
}  // namespace odmiennik::engine
