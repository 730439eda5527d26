// SPDX-License-Identifier: GPL-3.0-or-later
// Saving an edited verb: every way to it, and that a refused or failed save loses nothing.
#include <gtest/gtest.h>

#include "tests/unit/app_logic/edit_window_fake.h"

namespace odmiennik::app {
namespace {

using dictionary::Button;
using odmiennik::testing::EditWindowFake;
using Command = bool (EditMode::*)();
using Diary = std::vector<std::string>;
using Texts = std::vector<Utf8Text>;

constexpr Utf8View kSaveQuestion = "Zapisać edytowany czasownik - 'ab'?";
constexpr Utf8View kRefusal = "Musisz wpisać poprawny bezokolicznik.";

// Edits "aller" and changes its infinitive and a form.
class EditedVerb {
 public:
  explicit EditedVerb(std::string_view infinitive) {
    EXPECT_TRUE(window.give(&EditMode::edit));
    window.type(96, infinitive);
    window.type(1, "changed");
    window.diary.clear();
  }

  // The command asks to save, the user says Yes, and it stops with everything as it was.
  void expectNothingLost(Command command) {
    window.messages.answers = {Button::yes};
    const EditWindowFake::Texts before = window.texts;
    const Utf8Text caption = window.seen.windowCaption;
    EXPECT_FALSE(window.give(command));
    EXPECT_EQ(window.texts, before);
    EXPECT_EQ(window.seen.windowCaption, caption);
    EXPECT_TRUE(window.seen.isEditing);
    EXPECT_TRUE(window.mode.isEditing());
  }

  EditWindowFake window{"aller"};
};

TEST(saving_an_edited_verb, writes_leaves_and_conjugates_without_a_question) {
  EditedVerb edited("aimer");
  EXPECT_TRUE(edited.window.give(&EditMode::save));
  EXPECT_EQ(edited.window.diary, (Diary{"write aimer", "conjugate aimer"}));
  EXPECT_EQ(edited.window.messages.shown, Texts{});
  EXPECT_FALSE(edited.window.seen.isEditing);
}

TEST(saving_an_edited_verb, is_possible_without_a_change) {
  EditWindowFake window("aller");
  EXPECT_TRUE(window.give(&EditMode::edit));
  EXPECT_TRUE(window.give(&EditMode::save));
  EXPECT_EQ(window.diary,
            (Diary{"hourglass", "edit aller", "pointer", "write aller", "conjugate aller"}));
}

TEST(saving_an_edited_verb, does_nothing_outside_edit_mode) {
  EditWindowFake window("aller");
  EXPECT_FALSE(window.give(&EditMode::save));
  EXPECT_EQ(window.diary, Diary{});
}

TEST(saving_an_edited_verb, leaving_right_after_it_asks_nothing) {
  EditedVerb edited("aimer");
  EXPECT_TRUE(edited.window.give(&EditMode::save));
  EXPECT_TRUE(edited.window.give(&EditMode::conjugate));
  EXPECT_EQ(edited.window.messages.shown, Texts{});
}

TEST(saving_an_edited_verb, refuses_an_infinitive_that_is_none_and_keeps_editing) {
  EditedVerb edited("ab");
  edited.expectNothingLost(&EditMode::save);
  EXPECT_EQ(edited.window.messages.shown, Texts{Utf8Text(kRefusal)});
  EXPECT_EQ(edited.window.diary, Diary{});
}

TEST(saving_an_edited_verb, names_the_form_that_cannot_be_saved_and_leads_to_it) {
  EditedVerb edited("aimer");
  edited.window.type(7, "\"aimais");
  edited.window.type(3, "a, b");
  edited.expectNothingLost(&EditMode::save);
  EXPECT_EQ(
      edited.window.messages.shown,
      Texts{"Nie można zapisać czasownika, bo forma „\"aimais” zaczyna się od cudzysłowu. Usuń "
            "cudzysłów i zapisz ponownie."});
  EXPECT_EQ(edited.window.diary, Diary{"focus 7"});
}

constexpr Utf8View kCommaQuestion =
    "Forma „a, b” zawiera przecinek, który w pliku rozdziela formy. Zapisać mimo to?";

TEST(saving_an_edited_verb, asks_about_a_comma_and_leads_to_it_on_no) {
  EditedVerb edited("aimer");
  edited.window.type(3, "a, b");
  edited.window.messages.answers = {Button::no};
  EXPECT_FALSE(edited.window.give(&EditMode::save));
  EXPECT_EQ(edited.window.messages.shown, Texts{Utf8Text(kCommaQuestion)});
  EXPECT_EQ(edited.window.diary, Diary{"focus 3"});
  EXPECT_TRUE(edited.window.seen.isEditing);
}

TEST(saving_an_edited_verb, with_a_comma_is_done_on_yes) {
  EditedVerb edited("aimer");
  edited.window.type(3, "a, b");
  edited.window.messages.answers = {Button::yes};
  EXPECT_TRUE(edited.window.give(&EditMode::save));
  EXPECT_EQ(edited.window.diary, (Diary{"write aimer", "conjugate aimer"}));
}

TEST(saving_an_edited_verb, a_comma_refused_behind_the_save_question_loses_nothing) {
  for (const Command command :
       {&EditMode::edit, &EditMode::newVerb, &EditMode::conjugate, &EditMode::leaveForClosing}) {
    EditedVerb edited("aimer");
    edited.window.type(3, "a, b");
    edited.expectNothingLost(command);
    EXPECT_EQ(edited.window.messages.shown.size(), 2U);
    EXPECT_EQ(edited.window.diary, Diary{"focus 3"});
  }
}

TEST(saving_an_edited_verb, a_write_that_fails_keeps_editing) {
  EditedVerb edited("aimer");
  edited.window.canWrite = false;
  edited.expectNothingLost(&EditMode::save);
  EXPECT_EQ(edited.window.diary, Diary{"write aimer"});
}

TEST(saving_an_edited_verb, can_be_tried_again_after_a_failure) {
  EditedVerb edited("aimer");
  edited.window.canWrite = false;
  edited.expectNothingLost(&EditMode::save);
  edited.window.canWrite = true;
  edited.window.messages.answers.clear();
  EXPECT_TRUE(edited.window.give(&EditMode::save));
  EXPECT_FALSE(edited.window.seen.isEditing);
}

TEST(saving_an_edited_verb, conjugate_conjugates_once_when_the_answer_is_yes) {
  EditedVerb edited("aimer");
  edited.window.messages.answers = {Button::yes};
  EXPECT_TRUE(edited.window.give(&EditMode::conjugate));
  EXPECT_EQ(edited.window.diary, (Diary{"write aimer", "conjugate aimer"}));
}

TEST(saving_an_edited_verb, edit_conjugates_once_when_the_answer_is_yes) {
  EditedVerb edited("aimer");
  edited.window.messages.answers = {Button::yes};
  EXPECT_TRUE(edited.window.give(&EditMode::edit));
  EXPECT_EQ(edited.window.diary, (Diary{"write aimer", "conjugate aimer"}));
  EXPECT_FALSE(edited.window.seen.isEditing);
}

TEST(saving_an_edited_verb, new_verb_saves_the_old_one_and_goes_on) {
  EditedVerb edited("aimer");
  edited.window.messages.answers = {Button::yes};
  EXPECT_TRUE(edited.window.give(&EditMode::newVerb));
  EXPECT_EQ(edited.window.diary,
            (Diary{"write aimer", "conjugate aimer", "hourglass", "edit ", "pointer"}));
  EXPECT_EQ(edited.window.texts[96], "aimer");
  EXPECT_EQ(edited.window.texts[1], "");
  EXPECT_TRUE(edited.window.seen.isEditing);
}

TEST(saving_an_edited_verb, closing_goes_on_once_it_is_saved) {
  EditedVerb edited("aimer");
  edited.window.messages.answers = {Button::yes};
  EXPECT_TRUE(edited.window.give(&EditMode::leaveForClosing));
  EXPECT_EQ(edited.window.diary, (Diary{"write aimer", "conjugate aimer"}));
}

TEST(saving_an_edited_verb, closing_gives_the_changes_up_after_the_answer_no) {
  EditedVerb edited("aimer");
  EXPECT_TRUE(edited.window.give(&EditMode::leaveForClosing));
  EXPECT_EQ(edited.window.diary, Diary{});
  EXPECT_EQ(edited.window.messages.shown.size(), 1U);
}

TEST(saving_an_edited_verb, closing_asks_no_second_time_what_was_answered) {
  EditedVerb edited("aimer");
  EXPECT_TRUE(edited.window.give(&EditMode::leaveForClosing));
  EXPECT_TRUE(edited.window.give(&EditMode::leaveForClosing));
  EXPECT_EQ(edited.window.messages.shown.size(), 1U);
}

TEST(saving_an_edited_verb, closing_asks_again_once_more_was_typed) {
  EditedVerb edited("aimer");
  EXPECT_TRUE(edited.window.give(&EditMode::leaveForClosing));
  edited.window.type(2, "changed too");
  EXPECT_TRUE(edited.window.give(&EditMode::leaveForClosing));
  EXPECT_EQ(edited.window.messages.shown.size(), 2U);
}

TEST(saving_an_edited_verb, closing_asks_nothing_outside_edit_mode) {
  EditWindowFake window("aller");
  window.type(96, "parler");
  EXPECT_TRUE(window.give(&EditMode::leaveForClosing));
  EXPECT_EQ(window.messages.shown, Texts{});
  EXPECT_EQ(window.diary, Diary{});
}

// Whoever put the question stops where a save is refused or fails.
class save_question : public ::testing::TestWithParam<Command> {};

TEST_P(save_question, loses_nothing_when_the_infinitive_is_refused) {
  EditedVerb edited("ab");
  edited.expectNothingLost(GetParam());
  EXPECT_EQ(edited.window.messages.shown, (Texts{Utf8Text(kSaveQuestion), Utf8Text(kRefusal)}));
  EXPECT_EQ(edited.window.diary, Diary{});
}

TEST_P(save_question, loses_nothing_when_the_write_fails) {
  EditedVerb edited("aimer");
  edited.window.canWrite = false;
  edited.expectNothingLost(GetParam());
  EXPECT_EQ(edited.window.diary, Diary{"write aimer"});
}

TEST_P(save_question, is_put_again_after_a_save_that_failed) {
  EditedVerb edited("aimer");
  edited.window.canWrite = false;
  edited.expectNothingLost(GetParam());
  edited.expectNothingLost(GetParam());
  EXPECT_EQ(edited.window.messages.shown.size(), 2U);
}

std::string nameOf(const ::testing::TestParamInfo<Command>& info) {
  if (info.param == &EditMode::edit) return "edit";
  if (info.param == &EditMode::newVerb) return "new_verb";
  return info.param == &EditMode::conjugate ? "conjugate" : "close";
}

INSTANTIATE_TEST_SUITE_P(asked_by, save_question,
                         ::testing::Values(&EditMode::edit, &EditMode::newVerb,
                                           &EditMode::conjugate, &EditMode::leaveForClosing),
                         nameOf);

}  // namespace
}  // namespace odmiennik::app
