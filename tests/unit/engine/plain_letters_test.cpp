// SPDX-License-Identifier: GPL-3.0-or-later
// Letters without their accents.
#include "engine/plain_letters.h"

#include <gtest/gtest.h>

namespace odmiennik::engine {
namespace {

TEST(plain_letters, lose_their_accents) {
  EXPECT_EQ(withoutAccents("àâäçèéêëîïôöùûüÿ"_fr), "aaaceeeeiioouuuy");
  EXPECT_EQ(withoutAccents("áãåìíñòóõúý"_fr), "aaaiinooouy");
}

TEST(plain_letters, of_letters_in_one_are_two) {
  EXPECT_EQ(withoutAccents("œuvrât"_fr), "oeuvrat");
  EXPECT_EQ(withoutAccents("cæcum"_fr), "caecum");
}

TEST(plain_letters, of_what_has_no_accent_are_its_own) {
  for (int byte = 0; byte < 0x80; ++byte)
    EXPECT_EQ(plainLetter(static_cast<char>(byte)), static_cast<char>(byte));
}

TEST(initial_letter, is_the_letter_under_which_a_dictionary_files_a_word) {
  EXPECT_EQ(initialLetter('m'), 'm');
  EXPECT_EQ(initialLetter("é"_fr[0]), 'e');
  EXPECT_EQ(initialLetter("œ"_fr[0]), 'o');
}

TEST(initial_letter, is_none_of_what_begins_no_french_word) {
  for (const char letter : "ñáßABC'1 "_fr) EXPECT_EQ(initialLetter(letter), 0) << letter;
}

}  // namespace
}  // namespace odmiennik::engine
