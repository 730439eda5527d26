// SPDX-License-Identifier: GPL-3.0-or-later
// The verb that was meant by another spelling.
#include "dictionary/spelling.h"

#include <gtest/gtest.h>

#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::dictionary {
namespace {

using odmiennik::testing::french;

std::string meant(std::string_view typed) { return testing::utf8(otherSpelling(french(typed))); }

TEST(other_spelling, finds_a_verb_written_without_its_accents) {
  EXPECT_EQ(meant("etre"), "être");
  EXPECT_EQ(meant("connaitre"), "connaître");
  EXPECT_EQ(meant("paraitre"), "paraître");
  EXPECT_EQ(meant("oeuvrer"), "œuvrer");
}

TEST(other_spelling, finds_a_verb_written_with_the_wrong_accents) {
  EXPECT_EQ(meant("ètre"), "être");
  EXPECT_EQ(meant("áller"), "aller");
}

TEST(other_spelling, finds_the_traditional_spelling_behind_that_of_1990) {
  EXPECT_EQ(meant("assoir"), "asseoir");
  EXPECT_EQ(meant("sursoir"), "surseoir");
}

TEST(other_spelling, keeps_the_reflexive_prefix_that_was_typed) {
  EXPECT_EQ(meant(" S’Assoir "), "s'asseoir");
  EXPECT_EQ(meant("se connaitre"), "se connaître");
}

TEST(other_spelling, is_none_of_a_verb_that_is_spelled_right_or_unknown) {
  for (const char* typed : {"être", "aimer", "", "se ", "x", "zzzoir", "oir", "'", "123"})
    EXPECT_EQ(meant(typed), "") << typed;
}

}  // namespace
}  // namespace odmiennik::dictionary
