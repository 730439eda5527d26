// SPDX-License-Identifier: GPL-3.0-or-later
// When the edit commands are available.
#include "app/logic/edit_commands.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

constexpr bool kText = true;
constexpr bool kNoText = false;  // nothing on the clipboard, or an image

ActiveControl box(bool isReadOnly, std::size_t selected, std::size_t length) {
  return {"txtCzasownik_96", isReadOnly, selected, length};
}

TEST(edit_commands, are_all_disabled_on_a_button) {
  EXPECT_EQ(editAvailability({"cmdOdmień", false, 3, 5}, kText), EditAvailability{});
  EXPECT_EQ(editAvailability({"", false, 3, 5}, kText), EditAvailability{});
  EXPECT_EQ(editAvailability({"TxtInne", false, 3, 5}, kText), EditAvailability{});
}

TEST(edit_commands, in_a_locked_box_with_a_selection_are_copy_and_select_all) {
  EXPECT_EQ(editAvailability(box(true, 2, 5), kText),
            (EditAvailability{.canCopy = true, .canSelectAll = true}));
}

TEST(edit_commands, in_the_entry_box_with_a_selection_are_all) {
  EXPECT_EQ(editAvailability(box(false, 2, 5), kText),
            (EditAvailability{true, true, true, true, true, false}));
}

TEST(edit_commands, without_a_selection_are_paste_and_select_all) {
  EXPECT_EQ(editAvailability(box(false, 0, 5), kText),
            (EditAvailability{.canPaste = true, .canSelectAll = true}));
}

TEST(edit_commands, do_not_select_all_where_all_is_selected_or_nothing_is_written) {
  EXPECT_FALSE(editAvailability(box(false, 5, 5), kText).canSelectAll);
  EXPECT_FALSE(editAvailability(box(false, 0, 0), kText).canSelectAll);
}

TEST(edit_commands, take_back_what_was_typed_into_an_unlocked_box) {
  ActiveControl typed = box(false, 0, 5);
  EXPECT_FALSE(editAvailability(typed, kNoText).canUndo);
  typed.hasHistory = true;
  EXPECT_TRUE(editAvailability(typed, kNoText).canUndo);
  typed.isReadOnly = true;
  EXPECT_FALSE(editAvailability(typed, kNoText).canUndo);
  EXPECT_FALSE(editAvailability({"cmdOdmień", false, 0, 5, true}, kNoText).canUndo);
}

TEST(edit_commands, paste_nowhere_without_a_text_on_the_clipboard) {
  EXPECT_FALSE(editAvailability(box(false, 0, 5), kNoText).canPaste);
  EXPECT_FALSE(editAvailability(box(true, 0, 5), kNoText).canPaste);
}

}  // namespace
}  // namespace odmiennik::app
