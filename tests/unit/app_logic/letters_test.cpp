// French letters typed by clicking.
#include "app/logic/letters.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

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

}  // namespace
}  // namespace odmiennik::app
