// SPDX-License-Identifier: GPL-3.0-or-later
// The hint that answers keys in read-only boxes.
#include "app/logic/entry_box_hint.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

constexpr KeyStroke kLetter{.physicalKey = 38, .virtualKey = 65};

bool pressAndRelease(ReadOnlyBoxHint& hint, int box, const KeyStroke& key) {
  hint.pressed(box, key);
  return hint.released(box, key);
}

bool answers(const KeyStroke& key) {
  ReadOnlyBoxHint hint;
  return pressAndRelease(hint, 0, key);
}

TEST(read_only_box, answers_a_key_each_time) {
  ReadOnlyBoxHint hint;
  EXPECT_TRUE(pressAndRelease(hint, 0, kLetter));
  EXPECT_TRUE(pressAndRelease(hint, 0, kLetter));
}

TEST(read_only_box, answers_letters_deletion_and_enter) {
  for (const int code : {65, 48, virtual_key::kBackspace, virtual_key::kDelete, virtual_key::kEnter,
                         virtual_key::kF1, virtual_key::kNone})
    EXPECT_TRUE(answers({.physicalKey = 9, .virtualKey = code})) << code;
}

TEST(read_only_box, does_not_answer_keys_that_move_the_caret_or_the_selection) {
  for (int code = virtual_key::kPageUp; code <= virtual_key::kDown; ++code)
    EXPECT_FALSE(answers({.physicalKey = 113, .virtualKey = code})) << code;
  EXPECT_TRUE(answers({.physicalKey = 65, .virtualKey = virtual_key::kSpace}));
}

TEST(read_only_box, does_not_answer_tab) {
  EXPECT_FALSE(answers({.physicalKey = 23, .virtualKey = virtual_key::kTab}));
}

TEST(read_only_box, does_not_answer_modifiers) {
  for (const int code : {16, 17, 18, 20, 91, 92, 144, 145, 160, 161, 162, 163, 164, 165})
    EXPECT_FALSE(answers({.physicalKey = 50, .virtualKey = code})) << code;
}

TEST(read_only_box, does_not_answer_keys_with_control_or_alt_held) {
  EXPECT_FALSE(answers({.physicalKey = 54, .virtualKey = 67, .isControlHeld = true}));
  EXPECT_FALSE(answers({.physicalKey = 54, .virtualKey = 67, .isAltHeld = true}));
}

TEST(read_only_box, does_not_answer_a_copy_whose_control_key_is_released_first) {
  ReadOnlyBoxHint hint;
  hint.pressed(0, {.physicalKey = 54, .virtualKey = 67, .isControlHeld = true});
  EXPECT_FALSE(hint.released(0, {.physicalKey = 54, .virtualKey = 67}));
}

TEST(read_only_box, does_not_answer_shortcuts) {
  EXPECT_FALSE(answers({.physicalKey = 67, .virtualKey = virtual_key::kF1, .isShortcut = true}));
}

TEST(read_only_box, does_not_answer_a_key_that_went_down_elsewhere) {
  ReadOnlyBoxHint hint;
  EXPECT_FALSE(hint.released(0, kLetter));
  hint.pressed(1, kLetter);
  EXPECT_FALSE(hint.released(2, kLetter));
}

TEST(read_only_box, forgets_keys_of_a_box_once_a_key_goes_down_in_another) {
  ReadOnlyBoxHint hint;
  hint.pressed(1, kLetter);
  hint.pressed(2, {.physicalKey = 39, .virtualKey = 66});
  EXPECT_FALSE(hint.released(2, kLetter));
}

TEST(read_only_box, does_not_answer_the_key_that_closed_the_hint) {
  ReadOnlyBoxHint hint;
  EXPECT_TRUE(pressAndRelease(hint, 0, kLetter));
  hint.focusLeft();
  EXPECT_FALSE(hint.released(0, {.physicalKey = 36, .virtualKey = virtual_key::kEnter}));
}

TEST(read_only_box, forgets_keys_once_the_focus_has_left) {
  ReadOnlyBoxHint hint;
  hint.pressed(0, kLetter);
  hint.focusLeft();
  EXPECT_FALSE(hint.released(0, kLetter));
}

TEST(read_only_box, answers_a_key_held_down_once) {
  ReadOnlyBoxHint hint;
  KeyStroke repeated = kLetter;
  repeated.isRepeated = true;
  hint.pressed(0, kLetter);
  EXPECT_FALSE(hint.released(0, repeated));
  hint.pressed(0, repeated);
  EXPECT_TRUE(hint.released(0, kLetter));
  EXPECT_FALSE(hint.released(0, kLetter));
}

TEST(read_only_box, answers_keys_that_were_down_together_once) {
  ReadOnlyBoxHint hint;
  const KeyStroke other{.physicalKey = 39, .virtualKey = 66};
  hint.pressed(0, kLetter);
  hint.pressed(0, other);
  EXPECT_TRUE(hint.released(0, kLetter));
  EXPECT_FALSE(hint.released(0, other));
}

TEST(reaction_to_a_key, completes_in_the_entry_box) {
  EXPECT_EQ(reactionToKey(true, false, true, {.virtualKey = 65}, true), KeyReaction::complete);
  EXPECT_EQ(reactionToKey(true, false, true, {.virtualKey = 8}, true), KeyReaction::none);
}

TEST(reaction_to_a_key, is_nothing_in_the_entry_box_with_completion_off) {
  EXPECT_EQ(reactionToKey(true, false, false, {.virtualKey = 65}, true), KeyReaction::none);
}

TEST(reaction_to_a_key, is_the_hint_in_a_read_only_box_whatever_the_switch) {
  for (const bool isOn : {true, false})
    EXPECT_EQ(reactionToKey(false, true, isOn, {.virtualKey = 65}, true), KeyReaction::hint);
  EXPECT_EQ(reactionToKey(false, true, true, {.virtualKey = 9}, false), KeyReaction::none);
}

TEST(reaction_to_a_key, is_nothing_in_an_editable_form_box) {
  EXPECT_EQ(reactionToKey(false, false, true, {.virtualKey = 65}, true), KeyReaction::none);
}

}  // namespace
}  // namespace odmiennik::app
