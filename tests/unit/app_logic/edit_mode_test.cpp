// SPDX-License-Identifier: GPL-3.0-or-later
// Entering and leaving edit mode, its captions and its saved flag.
#include <gtest/gtest.h>

#include "tests/unit/app_logic/edit_window_fake.h"

namespace odmiennik::app {
namespace {

using dictionary::Button;
using odmiennik::testing::EditWindowFake;
using odmiennik::testing::french;
using Diary = std::vector<std::string>;
using Texts = std::vector<Utf8Text>;

TEST(edit_mode, a_window_just_opened_shows_its_version_and_the_first_caption) {
  EditWindowFake window("infinitif");
  EXPECT_EQ(window.seen.windowCaption, "Odmiennik v.1.0.12");
  EXPECT_EQ(window.seen.menuCaption, "E&dytuj");
  EXPECT_FALSE(window.seen.isEditing);
  EXPECT_FALSE(window.mode.isEditing());
}

TEST(edit_mode, edit_marks_it_and_unlocks_the_boxes) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  EXPECT_TRUE(window.mode.isEditing());
  EXPECT_TRUE(window.seen.isEditing);
  EXPECT_EQ(window.seen.menuCaption, "&Koniec edycji");
}

TEST(edit_mode, entering_conjugates_for_editing_under_the_hourglass) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  EXPECT_EQ(window.diary, (Diary{"hourglass", "edit aller", "pointer"}));
}

TEST(edit_mode, the_caption_quotes_the_infinitive_in_polish_encoding) {
  EditWindowFake window(french("être"));
  EXPECT_TRUE(window.give(&EditMode::edit));
  EXPECT_EQ(window.seen.windowCaption, "Odmiennik - edycja \"être\"");
}

TEST(edit_mode, the_caption_follows_the_infinitive_as_it_is_typed) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  window.type(96, "allers");
  EXPECT_EQ(window.seen.windowCaption, "Odmiennik - edycja \"allers\"");
}

TEST(edit_mode, typing_outside_edit_mode_leaves_the_caption) {
  EditWindowFake window("aller");
  window.type(96, "parler");
  EXPECT_EQ(window.seen.windowCaption, "Odmiennik v.1.0.12");
}

TEST(edit_mode, edit_while_editing_leaves_and_conjugates) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  window.diary.clear();
  EXPECT_TRUE(window.give(&EditMode::edit));
  EXPECT_EQ(window.diary, Diary{"conjugate aller"});
  EXPECT_FALSE(window.seen.isEditing);
}

TEST(edit_mode, once_left_the_caption_has_no_version_and_the_menu_its_other_caption) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  EXPECT_TRUE(window.give(&EditMode::conjugate));
  EXPECT_EQ(window.seen.windowCaption, "Odmiennik");
  EXPECT_EQ(window.seen.menuCaption, "&Edytuj czasownik");
  EXPECT_FALSE(window.mode.isEditing());
}

TEST(edit_mode, conjugate_outside_edit_mode_only_conjugates) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::conjugate));
  EXPECT_EQ(window.diary, Diary{"conjugate aller"});
  EXPECT_EQ(window.seen.windowCaption, "Odmiennik v.1.0.12");
}

TEST(edit_mode, leaving_without_a_change_asks_nothing) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  EXPECT_TRUE(window.give(&EditMode::conjugate));
  EXPECT_EQ(window.messages.shown, Texts{});
}

TEST(edit_mode, leaving_after_a_change_asks_once_and_names_the_verb) {
  EditWindowFake window(french("être"));
  EXPECT_TRUE(window.give(&EditMode::edit));
  window.type(0, "sois");
  EXPECT_TRUE(window.give(&EditMode::conjugate));
  EXPECT_EQ(window.messages.shown, Texts{"Zapisać edytowany czasownik - 'être'?"});
}

TEST(edit_mode, the_answer_no_gives_the_changes_up_and_conjugates) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  window.type(0, "alle");
  window.diary.clear();
  EXPECT_TRUE(window.give(&EditMode::conjugate));
  EXPECT_EQ(window.diary, Diary{"conjugate aller"});
  EXPECT_FALSE(window.seen.isEditing);
}

TEST(edit_mode, new_verb_clears_the_boxes_and_keeps_the_infinitive_trimmed) {
  EditWindowFake window("  parler ");
  window.type(12, "parlai");
  EXPECT_TRUE(window.give(&EditMode::newVerb));
  EXPECT_EQ(window.texts[12], "");
  EXPECT_EQ(window.texts[96], "parler");
  EXPECT_TRUE(window.seen.isEditing);
}

TEST(edit_mode, new_verb_enters_with_an_empty_infinitive) {
  EditWindowFake window("parler");
  EXPECT_TRUE(window.give(&EditMode::newVerb));
  EXPECT_EQ(window.diary, (Diary{"hourglass", "edit ", "pointer"}));
  EXPECT_EQ(window.seen.windowCaption, "Odmiennik - edycja \"parler\"");
}

TEST(edit_mode, new_verb_while_editing_asks_about_unsaved_changes_first) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  window.type(96, "allier");
  EXPECT_TRUE(window.give(&EditMode::newVerb));
  EXPECT_EQ(window.messages.shown, Texts{"Zapisać edytowany czasownik - 'allier'?"});
  EXPECT_EQ(window.texts[96], "allier");
  EXPECT_TRUE(window.seen.isEditing);
}

TEST(edit_mode, new_verb_while_editing_without_changes_asks_nothing) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  EXPECT_TRUE(window.give(&EditMode::newVerb));
  EXPECT_EQ(window.messages.shown, Texts{});
  EXPECT_TRUE(window.mode.isEditing());
}

TEST(edit_mode, no_command_starts_while_another_asks) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  window.type(0, "alle");
  window.messages.whileShown = [&] {
    EXPECT_TRUE(window.mode.isBusy());
    for (const auto command : {&EditMode::edit, &EditMode::newVerb, &EditMode::conjugate,
                               &EditMode::save, &EditMode::restore, &EditMode::leaveForClosing})
      EXPECT_FALSE(window.give(command));
  };
  window.diary.clear();
  EXPECT_TRUE(window.give(&EditMode::conjugate));
  EXPECT_EQ(window.messages.shown.size(), 1U);
  EXPECT_EQ(window.diary, Diary{"conjugate aller"});
}

TEST(edit_mode, the_caption_takes_the_infinitive_of_slot_96_on_entering) {
  EditWindowFake window("  Aller ");
  window.normalized = "aller";
  EXPECT_TRUE(window.give(&EditMode::edit));
  EXPECT_EQ(window.seen.windowCaption, "Odmiennik - edycja \"aller\"");
}

constexpr Utf8View kRestoreQuestion =
    "Usunąć zapisaną odmianę czasownika „laver” i odmienić go od nowa?";

TEST(restoring, removes_the_record_and_conjugates_the_shown_verb_anew_on_yes) {
  EditWindowFake window("fin");
  window.shown = "se laver";
  window.stored = "laver";
  window.messages.answers = {Button::yes};
  EXPECT_TRUE(window.give(&EditMode::restore));
  EXPECT_EQ(window.messages.shown, Texts{Utf8Text(kRestoreQuestion)});
  EXPECT_EQ(window.diary, (Diary{"remove laver", "conjugate se laver"}));
}

TEST(restoring, does_nothing_on_no) {
  EditWindowFake window("laver");
  window.shown = window.stored = "laver";
  EXPECT_FALSE(window.give(&EditMode::restore));
  EXPECT_EQ(window.messages.shown, Texts{Utf8Text(kRestoreQuestion)});
  EXPECT_EQ(window.diary, Diary{});
}

TEST(restoring, stops_where_the_record_cannot_be_removed) {
  EditWindowFake window("fin");
  window.shown = window.stored = "laver";
  window.canWrite = false;
  window.messages.answers = {Button::yes};
  EXPECT_FALSE(window.give(&EditMode::restore));
  EXPECT_EQ(window.diary, Diary{"remove laver"});
  EXPECT_EQ(window.entryText(), "fin");
}

TEST(restoring, asks_nothing_where_the_verb_is_not_the_users) {
  EditWindowFake window("laver");
  window.shown = "laver";
  EXPECT_FALSE(window.give(&EditMode::restore));
  EXPECT_EQ(window.messages.shown, Texts{});
  EXPECT_EQ(window.diary, Diary{});
}

TEST(restoring, does_nothing_while_a_verb_is_edited) {
  EditWindowFake window("laver");
  window.shown = window.stored = "laver";
  EXPECT_TRUE(window.give(&EditMode::edit));
  window.diary.clear();
  EXPECT_FALSE(window.give(&EditMode::restore));
  EXPECT_EQ(window.messages.shown, Texts{});
  EXPECT_EQ(window.diary, Diary{});
  EXPECT_TRUE(window.seen.isEditing);
}

}  // namespace
}  // namespace odmiennik::app
