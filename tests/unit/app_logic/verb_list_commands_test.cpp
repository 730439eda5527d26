// SPDX-License-Identifier: GPL-3.0-or-later
// What the list's buttons ask of the main window.
#include "app/logic/verb_list_commands.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace odmiennik::app {
namespace {

using Diary = std::vector<std::string>;

// Notes the commands that it is given; `refusing` is the one that stops.
struct MainFake final : MainCommands {
  [[nodiscard]] bool isEditing() const override { return isBeingEdited; }
  [[nodiscard]] bool edit() override { return note("edit"); }
  [[nodiscard]] bool newVerb() override { return note("new"); }
  [[nodiscard]] bool conjugate(std::string_view infinitive) override {
    return note("conjugate " + std::string(infinitive));
  }
  [[nodiscard]] bool print() override { return note("print"); }

  bool note(const std::string& command) {
    diary.push_back(command);
    return command != refusing;
  }
  bool isBeingEdited = false;
  std::string refusing;
  Diary diary;
};

Diary diaryOf(ListButton button, bool isEditing = false) {
  MainFake main;
  main.isBeingEdited = isEditing;
  runListButton(button, "aller", main);
  return main.diary;
}

TEST(list_buttons, hand_their_commands_to_the_main_window) {
  EXPECT_EQ(diaryOf(ListButton::cmdOdmień), Diary{"conjugate aller"});
  EXPECT_EQ(diaryOf(ListButton::cmdEdytuj), (Diary{"conjugate aller", "edit"}));
  EXPECT_EQ(diaryOf(ListButton::cmdDrukuj), (Diary{"conjugate aller", "print"}));
  EXPECT_EQ(diaryOf(ListButton::cmdNowy), Diary{"new"});
}

TEST(list_buttons, leave_edit_mode_first) {
  EXPECT_EQ(diaryOf(ListButton::cmdOdmień, true), (Diary{"edit", "conjugate aller"}));
  EXPECT_EQ(diaryOf(ListButton::cmdEdytuj, true), (Diary{"edit", "conjugate aller", "edit"}));
  EXPECT_EQ(diaryOf(ListButton::cmdNowy, true), Diary{"new"});
}

TEST(list_buttons, stop_where_an_edited_verb_could_not_be_saved) {
  for (const ListButton button :
       {ListButton::cmdOdmień, ListButton::cmdEdytuj, ListButton::cmdDrukuj}) {
    MainFake main;
    main.isBeingEdited = true;
    main.refusing = "edit";
    EXPECT_FALSE(runListButton(button, "aller", main));
    EXPECT_EQ(main.diary, Diary{"edit"});
  }
}

TEST(list_buttons, do_nothing_without_a_selected_verb) {
  MainFake main;
  EXPECT_FALSE(runListButton(ListButton::cmdEdytuj, "", main));
  EXPECT_EQ(main.diary, Diary{});
}

TEST(list_window, opened_for_deleting_shows_the_moved_delete_button_alone) {
  const ListAppearance appearance = appearanceOf(ListPurpose::deletion);
  EXPECT_EQ(appearance.caption, "Usuń czasownik");
  EXPECT_FALSE(appearance.showsOtherButtons);
  EXPECT_TRUE(appearance.isDeleteMoved);
}

TEST(list_window, opened_as_the_list_stands_as_designed) {
  const ListAppearance appearance = appearanceOf(ListPurpose::list);
  EXPECT_EQ(appearance.caption, "Lista czasowników");
  EXPECT_TRUE(appearance.showsOtherButtons);
  EXPECT_FALSE(appearance.isDeleteMoved);
}

}  // namespace
}  // namespace odmiennik::app
