// SPDX-License-Identifier: GPL-3.0-or-later
// The coarse test of infinitives, and the record that is made of the boxes.
#include "app/logic/saving.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/support/test_program.h"

namespace odmiennik::app {
namespace {

using odmiennik::testing::french;
using Boxes = std::array<std::string, engine::kSlotCount>;

TEST(infinitive_to_save, any_word_in_r_or_e_passes) {
  for (const std::string_view word : {"aimer", "finir", "être", "xyzr", "qqe"})
    EXPECT_TRUE(isInfinitive(french(word))) << word;
}

TEST(infinitive_to_save, another_last_letter_is_refused) {
  for (const std::string_view word : {"chanté", "resetuj", "aimeR", "aimE", "aimer."})
    EXPECT_FALSE(isInfinitive(french(word))) << word;
}

TEST(infinitive_to_save, fewer_than_three_letters_are_refused) {
  for (const std::string_view word : {"", "r", "ab", "er"})
    EXPECT_FALSE(isInfinitive(word)) << word;
  EXPECT_TRUE(isInfinitive("ier"));
}

TEST(infinitive_to_save, blanks_around_are_trimmed_before_the_last_letter_is_looked_at) {
  EXPECT_TRUE(isInfinitive("  faire  "));
  EXPECT_FALSE(isInfinitive("  "));
  EXPECT_FALSE(isInfinitive("    "));
}

TEST(infinitive_to_save, deliberate_blanks_count_for_the_length) {
  EXPECT_TRUE(isInfinitive(" e "));
}

TEST(infinitive_to_save, an_accented_letter_counts_once) {
  EXPECT_FALSE(isInfinitive(french("ée")));
  EXPECT_TRUE(isInfinitive(french("née")));
}

TEST(record_to_save, holds_every_box_and_the_auxiliary) {
  Boxes boxes;
  for (std::size_t slot = 0; slot < boxes.size(); ++slot) boxes[slot] = std::to_string(slot);
  const dictionary::UserVerbRecord record = recordOfBoxes(boxes, engine::kEtre);
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    EXPECT_EQ(record.forms[slot], std::to_string(slot));
  EXPECT_EQ(record.auxiliary, engine::kEtre);
}

TEST(record_to_save, a_form_that_does_not_exist_is_saved_as_empty) {
  Boxes boxes;
  boxes[7] = " -- ";
  EXPECT_EQ(recordOfBoxes(boxes, engine::kAvoir).forms[7], "");
  EXPECT_EQ(boxes[7], " -- ");
}

TEST(record_to_save, only_the_exact_mark_stands_for_a_missing_form) {
  Boxes boxes;
  boxes[7] = "--";
  boxes[8] = " --";
  const dictionary::UserVerbRecord record = recordOfBoxes(boxes, engine::kAvoir);
  EXPECT_EQ(record.forms[7], "--");
  EXPECT_EQ(record.forms[8], " --");
}

TEST(comma_in_a_form, is_found_in_the_first_form_that_has_one) {
  dictionary::UserVerbRecord record;
  EXPECT_EQ(formWithComma(record), std::nullopt);
  record.forms[98] = "payant,paiant";
  EXPECT_EQ(formWithComma(record), 98);
  record.forms[0] = "paye, paie";
  EXPECT_EQ(formWithComma(record), 0);
}

TEST(comma_in_a_form, deliberate_is_not_looked_for_in_the_last_two) {
  dictionary::UserVerbRecord record;
  record.forms[99] = french("dû, due");
  record.forms[100] = french("ayant dû, due");
  EXPECT_EQ(formWithComma(record), std::nullopt);
}

}  // namespace
}  // namespace odmiennik::app
