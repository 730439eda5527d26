// SPDX-License-Identifier: GPL-3.0-or-later
// Forms with what is said before them.
#include <gtest/gtest.h>

#include "formats/phrase.h"
#include "tests/unit/cli/asking.h"

namespace odmiennik::formats {
namespace {

Utf8Text phraseOf(Utf8View verb, int slot) {
  cli::Asking asking;
  Utf8Text out;
  appendPhrase(out, asking.answer(verb).conjugation.shown, slot);
  return out;
}

TEST(phrase, has_its_subject_in_full) {
  EXPECT_EQ(phraseOf("parler", 0), "je parle");
  EXPECT_EQ(phraseOf("parler", 3), "nous parlons");
  EXPECT_EQ(phraseOf("parler", 28), "vous avez parlé");
}

TEST(phrase, an_elided_subject_is_joined) { EXPECT_EQ(phraseOf("aimer", 24), "j'ai aimé"); }

TEST(phrase, a_subjunctive_follows_que) {
  EXPECT_EQ(phraseOf("aimer", 48), "que j'aime");
  EXPECT_EQ(phraseOf("aimer", 50), "qu'il aime");
  EXPECT_EQ(phraseOf("aimer", 71), "qu'ils eussent aimé");
  EXPECT_EQ(phraseOf("aimer", 72), "j'aimerais");
}

TEST(phrase, a_form_without_person_stands_alone) {
  EXPECT_EQ(phraseOf("parler", 90), "parle");
  EXPECT_EQ(phraseOf("parler", 100), "ayant parlé");
}

TEST(phrase, a_reflexive_pronoun_stays_with_the_form) {
  EXPECT_EQ(phraseOf("se laver", 3), "nous nous lavons");
}

TEST(phrase, there_is_none_without_a_form) {
  EXPECT_EQ(phraseOf("falloir", 0), "");
  EXPECT_EQ(phraseOf("falloir", 2), "il faut");
}

TEST(phrase, what_would_drive_a_terminal_is_escaped) {
  EXPECT_EQ(phraseOf("par\x1Bler", 0), "je par\\x1Ble");
}

}  // namespace
}  // namespace odmiennik::formats
