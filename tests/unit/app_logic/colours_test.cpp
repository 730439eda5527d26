// SPDX-License-Identifier: GPL-3.0-or-later
// Colours as numbers, and the colour window.
#include <gtest/gtest.h>

#include <limits>

#include "app/logic/colour_dialog.h"

namespace odmiennik::app {
namespace {

constexpr std::int32_t kSystemColour = -2147483640;  // window text of old files

TEST(colour_number, is_red_and_256_times_green_and_65536_times_blue) {
  EXPECT_EQ(colourNumber({255, 0, 0}), 255);
  EXPECT_EQ(colourNumber({0, 255, 0}), 65280);
  EXPECT_EQ(colourNumber({0, 0, 255}), 16711680);
  EXPECT_EQ(colourNumber({1, 2, 3}), 197121);
}

TEST(colour_number, gives_its_colour_back) {
  for (const Rgb colour : {Rgb{0, 0, 0}, Rgb{255, 255, 255}, Rgb{18, 52, 86}, Rgb{0, 128, 255}})
    EXPECT_EQ(colourOf(colourNumber(colour)), colour);
}

TEST(colour_number, a_negative_one_is_no_colour_of_its_own) {
  EXPECT_FALSE(colourOf(kSystemColour));
  EXPECT_FALSE(colourOf(-1));
  EXPECT_FALSE(colourOf(std::numeric_limits<std::int32_t>::min()));
}

TEST(colour_number, what_lies_beyond_the_three_colours_is_left_out) {
  EXPECT_EQ(colourOf(0x7F010203), (Rgb{3, 2, 1}));
}

TEST(colour_window, opens_with_the_live_colours_and_nothing_to_apply) {
  const ColourDialog dialog({.mood = 255, .tense = kSystemColour});
  EXPECT_EQ(dialog.sample(0), 255);
  EXPECT_EQ(dialog.sample(1), kSystemColour);
  EXPECT_FALSE(dialog.canApply());
}

TEST(colour_window, a_chosen_colour_fills_its_sample_alone) {
  ColourDialog dialog({.mood = 255, .tense = 0});
  dialog.choose(1, Rgb{0, 0, 255});
  EXPECT_EQ(dialog.sample(0), 255);
  EXPECT_EQ(dialog.sample(1), 16711680);
  EXPECT_TRUE(dialog.canApply());
}

TEST(colour_window, deliberate_a_cancelled_chooser_enables_applying_and_changes_nothing) {
  ColourDialog dialog({.mood = kSystemColour, .tense = 0});
  dialog.choose(0, std::nullopt);
  EXPECT_EQ(dialog.sample(0), kSystemColour);
  EXPECT_TRUE(dialog.canApply());
}

TEST(colour_window, applying_gives_both_colours_and_disables_itself) {
  ColourDialog dialog({.mood = 255, .tense = kSystemColour});
  dialog.choose(0, Rgb{0, 255, 0});
  EXPECT_EQ(dialog.apply(), (ColourNumbers{65280, kSystemColour}));
  EXPECT_FALSE(dialog.canApply());
}

TEST(colour_window, ok_gives_both_colours_whether_they_were_applied_or_not) {
  ColourDialog dialog({.mood = 255, .tense = 0});
  EXPECT_EQ(dialog.accept(), (ColourNumbers{255, 0}));
  dialog.choose(1, Rgb{1, 0, 0});
  EXPECT_EQ(dialog.accept(), (ColourNumbers{255, 1}));
}

TEST(colour_window, a_system_colour_stays_until_another_is_chosen) {
  ColourDialog dialog({.mood = kSystemColour, .tense = kSystemColour});
  dialog.choose(0, Rgb{0, 0, 0});
  EXPECT_EQ(dialog.accept(), (ColourNumbers{0, kSystemColour}));
}

}  // namespace
}  // namespace odmiennik::app
