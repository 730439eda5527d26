// SPDX-License-Identifier: GPL-3.0-or-later
// Completion in the entry box.
#include "app/logic/entry_box.h"

#include <gtest/gtest.h>

#include "dictionary/verb_index.h"
#include "tests/support/test_program.h"

namespace odmiennik::app {
namespace {

using odmiennik::testing::french;

// The text as typed, the caret behind it.
std::optional<CompletedEntry> typed(std::string_view text) {
  return completedEntry({.text = text, .caret = text.size()}, &dictionary::completion);
}

bool completesCode(int code) { return completes(ReleasedKey{.virtualKey = code}); }

TEST(completing_keys, are_those_of_codes_65_to_254) {
  for (int code = 1; code < 65; ++code) EXPECT_FALSE(completesCode(code)) << code;
  for (int code = 65; code <= 254; ++code) EXPECT_TRUE(completesCode(code)) << code;
  EXPECT_FALSE(completesCode(255));
}

TEST(completing_keys, do_not_include_what_deletes_or_moves) {
  for (const int code :
       {virtual_key::kBackspace, virtual_key::kDelete, virtual_key::kSpace, virtual_key::kEnter,
        virtual_key::kTab, virtual_key::kShift, 37, 38, 39, 40})
    EXPECT_FALSE(completesCode(code)) << code;
}

TEST(completing_keys, do_not_include_the_digit_row_whatever_it_types) {
  for (int digit = '0'; digit <= '9'; ++digit) {
    EXPECT_FALSE(completes({.virtualKey = digit, .isLetterTyped = false})) << digit;
    EXPECT_FALSE(completes({.virtualKey = digit, .isLetterTyped = true})) << digit;
  }
}

TEST(completing_keys, include_a_letter_that_arrives_without_a_key) {
  EXPECT_TRUE(completes({.virtualKey = virtual_key::kNone, .isLetterTyped = true}));
  EXPECT_FALSE(completes({.virtualKey = virtual_key::kNone, .isLetterTyped = false}));
}

TEST(completion_in_the_entry_box, selects_the_tail_that_nobody_typed) {
  const auto entry = typed("all");
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->text, std::string(dictionary::completion("all")));
  EXPECT_TRUE(entry->text.starts_with("all"));
  EXPECT_EQ(entry->caret, 3U);
  EXPECT_EQ(entry->selectionStart, 3U);
  EXPECT_EQ(entry->selectionStart + entry->selectionLength, entry->text.size());
}

TEST(completion_in_the_entry_box, counts_letters_and_not_bytes_of_utf8) {
  const auto entry = typed(french("éb"));
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->selectionStart, 2U);
}

TEST(completion_in_the_entry_box, leaves_a_text_that_no_verb_begins_with) {
  EXPECT_FALSE(typed("qqq"));
  EXPECT_FALSE(typed("ALL"));
}

TEST(completion_in_the_entry_box, leaves_an_empty_text_and_a_whole_verb) {
  EXPECT_FALSE(typed(""));
  EXPECT_FALSE(typed("aller"));
}

TEST(completion_in_the_entry_box, needs_the_caret_at_the_end) {
  EXPECT_FALSE(completedEntry({.text = "all", .caret = 2}, &dictionary::completion));
  EXPECT_FALSE(completedEntry({.text = "all", .caret = 0}, &dictionary::completion));
}

TEST(completion_in_the_entry_box, leaves_a_selection_alone) {
  EXPECT_FALSE(
      completedEntry({.text = "all", .caret = 3, .selectionLength = 2}, &dictionary::completion));
}

TEST(completion_in_the_entry_box, happens_in_no_locked_box) {
  EXPECT_FALSE(
      completedEntry({.text = "all", .caret = 3, .isReadOnly = true}, &dictionary::completion));
}

TEST(completion_in_the_entry_box, deleting_the_suggestion_does_not_bring_it_back) {
  ASSERT_TRUE(typed("all"));
  EXPECT_FALSE(completesCode(virtual_key::kBackspace));
}

TEST(completion_switch, is_inverted_and_kept_as_a_number) {
  CompletionSwitch autocompletion(true);
  EXPECT_EQ(autocompletion.stored(), 1);
  autocompletion.invert();
  EXPECT_FALSE(autocompletion.isOn());
  EXPECT_EQ(autocompletion.stored(), 0);
  autocompletion.invert();
  EXPECT_TRUE(autocompletion.isOn());
}

}  // namespace
}  // namespace odmiennik::app
