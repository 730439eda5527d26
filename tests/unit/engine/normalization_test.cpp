// SPDX-License-Identifier: GPL-3.0-or-later
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
  return testing::utf8(out);
}

TEST(normalization, blanks_at_both_ends_are_trimmed) {
  EXPECT_EQ(normalized("   laver "), "laver");
  EXPECT_EQ(normalized("     "), "");
  EXPECT_EQ(normalized(""), "");
}

TEST(normalization, blanks_inside_stay) { EXPECT_EQ(normalized(" se  laver "), "se  laver"); }

TEST(normalization, only_the_ordinary_blank_is_trimmed) {
  EXPECT_EQ(normalized("\tlaver\t"), "\tlaver\t");
  EXPECT_EQ(normalized("laver\n"), "laver\n");
  EXPECT_EQ(normalized("\u00A0laver\u00A0"), "\u00A0laver\u00A0");
}

TEST(normalization, every_capital_of_windows_1252_becomes_small) {
  EXPECT_EQ(normalized("ABCXYZ"), "abcxyz");
  EXPECT_EQ(normalized("ÀÂÄÇÈÉÊËÎÏÔÖÙÛÜÆ"), "àâäçèéêëîïôöùûüæ");
  EXPECT_EQ(normalized("ŒUVRER"), "œuvrer");
  EXPECT_EQ(normalized("ŠŽŸÞÝ"), "šžÿþý");
}

TEST(normalization, what_is_no_capital_stays) {
  EXPECT_EQ(normalized("×ß÷ÿœ@[`{0-9"), "×ß÷ÿœ@[`{0-9");
}

TEST(normalization, lower_case_changes_exactly_the_capitals) {
  int changed = 0;
  for (int byte = 0; byte < 256; ++byte) {
    std::string letter(1, static_cast<char>(byte));
    lowerCase(letter);
    changed += letter[0] != static_cast<char>(byte);
  }
  EXPECT_EQ(changed, 26 + 30 + 4);  // A-Z, À-Þ without ×, and Š Œ Ž Ÿ
}

TEST(normalization, a_typographic_apostrophe_is_read_as_the_plain_one) {
  EXPECT_EQ(normalized("S’Asseoir"), "s'asseoir");
}

TEST(normalization, other_quotation_marks_stay) { EXPECT_EQ(normalized("s‘asseoir"), "s‘asseoir"); }

TEST(reflexive_prefix, is_se_with_a_blank_or_s_with_an_apostrophe) {
  EXPECT_TRUE(hasReflexivePrefix("se laver"));
  EXPECT_TRUE(hasReflexivePrefix("s'asseoir"));
  EXPECT_TRUE(hasReflexivePrefix("se "));
  EXPECT_TRUE(hasReflexivePrefix("s'"));
}

TEST(reflexive_prefix, is_not_the_beginning_of_a_verb) {
  for (const std::string_view verb : {"semer", "servir", "s", "se", "", "Se laver", "se\tlaver"})
    EXPECT_FALSE(hasReflexivePrefix(verb)) << verb;
}

TEST(reflexive_prefix, is_removed) {
  EXPECT_EQ(withoutReflexivePrefix("se laver"), "laver");
  EXPECT_EQ(withoutReflexivePrefix("s'asseoir"), "asseoir");
  EXPECT_EQ(withoutReflexivePrefix("semer"), "semer");
}

TEST(reflexive_prefix, is_removed_only_once) {
  EXPECT_EQ(withoutReflexivePrefix("se se laver"), "se laver");
  EXPECT_EQ(withoutReflexivePrefix("s'se laver"), "se laver");
  EXPECT_EQ(withoutReflexivePrefix("se s'asseoir"), "s'asseoir");
}

TEST(reflexive_prefix, alone_leaves_the_empty_text) {
  EXPECT_EQ(withoutReflexivePrefix("se "), "");
  EXPECT_EQ(withoutReflexivePrefix("s'"), "");
}

TEST(lookup_key, ignores_blanks_case_and_reflexive_prefix) {
  EXPECT_EQ(lookupKey("  Aimer "), "aimer");
  EXPECT_EQ(lookupKey("S'Ensuivre"), "ensuivre");
  EXPECT_EQ(lookupKey(french("Se LAVER")), "laver");
}

}  // namespace
}  // namespace odmiennik::engine
