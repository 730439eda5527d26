// French letters typed by clicking.
#include "app/logic/letters.h"

#include <gtest/gtest.h>

#include "engine/windows1252.h"

namespace odmiennik::app {
namespace {

using namespace engine::literals;

std::string row(const Letters& letters) {
  std::string text;
  for (const std::string_view letter : letters) text += engine::toUtf8(letter);
  return text;
}

TEST(letter_controls, carry_thirteen_small_letters) {
  EXPECT_EQ(row(kCheckBoxLetters), "àâäçèéêëîïôùû");
  EXPECT_EQ(row(kButtonLetters), "àâäçèêéëîïôùû");
}

TEST(letter_controls, deliberate_number_5_is_e_acute_as_check_box_and_e_circumflex_as_button) {
  EXPECT_EQ(kCheckBoxLetters[5], "é"_fr);
  EXPECT_EQ(kButtonLetters[5], "ê"_fr);
}

// A user's click toggles the value and runs the handler; unticking runs it once more.
struct CheckBoxFake {
  void click(bool isReadOnly) { setTicked(!isTicked, isReadOnly); }
  void setTicked(bool ticked, bool isReadOnly) {
    isTicked = ticked;
    const LetterClick click = letterBoxClicked(isTicked, isReadOnly);
    inserted += click.insertsLetter ? 1 : 0;
    if (click.unticks) setTicked(false, isReadOnly);
  }
  bool isTicked = false;
  int inserted = 0;
};

TEST(letter_check_box, inserts_once_a_click_and_ends_unticked) {
  CheckBoxFake box;
  box.click(false);
  EXPECT_EQ(box.inserted, 1);
  EXPECT_FALSE(box.isTicked);
  box.click(false);
  EXPECT_EQ(box.inserted, 2);
}

TEST(letter_check_box, inserts_nothing_into_a_locked_box_and_ends_unticked) {
  CheckBoxFake box;
  box.click(true);
  EXPECT_EQ(box.inserted, 0);
  EXPECT_FALSE(box.isTicked);
}

TEST(inserted_letter, goes_in_at_the_caret_which_moves_behind_it) {
  EXPECT_EQ(withLetter({"rver", 0, 0}, "ê"_fr), (TextSelection{std::string("êrver"_fr), 1, 0}));
  EXPECT_EQ(withLetter({"abc", 3, 0}, "d"), (TextSelection{"abcd", 4, 0}));
}

TEST(inserted_letter, replaces_the_selection) {
  EXPECT_EQ(withLetter({"infinitif", 0, 9}, "é"_fr), (TextSelection{std::string("é"_fr), 1, 0}));
  EXPECT_EQ(withLetter({"abcd", 1, 2}, "x"), (TextSelection{"axd", 2, 0}));
}

TEST(inserted_letter, takes_places_outside_the_text_for_its_end) {
  EXPECT_EQ(withLetter({"ab", 9, 4}, "c"), (TextSelection{"abc", 3, 0}));
  EXPECT_EQ(withLetter({"ab", 1, 99}, "c"), (TextSelection{"ac", 2, 0}));
}

}  // namespace
}  // namespace odmiennik::app
