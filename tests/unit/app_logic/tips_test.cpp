// SPDX-License-Identifier: GPL-3.0-or-later
// The draw of a tip and its text.
#include "app/logic/tips.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace odmiennik::app {
namespace {

int draw(double random) {
  bool isForced = false;
  return drawTip(random, tipCount(), isForced);
}

TEST(tip_of_the_day, there_are_21_tips) { EXPECT_EQ(tipCount(), 21); }

TEST(tip_of_the_day, the_draw_reaches_the_first_and_the_last_tip) {
  EXPECT_EQ(draw(0), 1);
  EXPECT_EQ(draw(std::nextafter(1.0, 0.0)), 21);
}

TEST(tip_of_the_day, every_tip_is_equally_likely) {
  constexpr int kDrawsPerTip = 100;
  std::array<int, 22> drawn{};
  for (int i = 0; i < 21 * kDrawsPerTip; ++i)
    ++drawn.at(static_cast<std::size_t>(draw((i + 0.5) / (21 * kDrawsPerTip))));
  EXPECT_EQ(drawn[0], 0);
  for (std::size_t tip = 1; tip <= 21; ++tip) EXPECT_EQ(drawn[tip], kDrawsPerTip) << tip;
}

TEST(tip_of_the_day, a_forced_draw_gives_the_how_to_once) {
  bool isForced = true;
  EXPECT_EQ(drawTip(0, 21, isForced), 5);
  EXPECT_FALSE(isForced);
  EXPECT_EQ(drawTip(0, 21, isForced), 1);
}

TEST(tip_of_the_day, deliberate_the_same_tip_may_come_twice_in_a_row) {
  EXPECT_EQ(draw(0.5), draw(0.5));
}

TEST(tip_of_the_day, the_demonstrations_are_offered_with_the_how_to_only) {
  for (int tip = 1; tip <= 21; ++tip) EXPECT_EQ(offersDemonstration(tip), tip == 5) << tip;
}

TEST(tip_text, has_line_breaks_at_its_marks) {
  EXPECT_EQ(withLineBreaks("a/nb/n"), "a\r\nb\r\n");
  EXPECT_EQ(withLineBreaks("a/nb", "\n"), "a\nb");
  EXPECT_EQ(withLineBreaks("a / b"), "a / b");
  EXPECT_EQ(withLineBreaks(""), "");
}

TEST(tip_text, the_how_to_has_its_two_ways_on_two_lines) {
  EXPECT_NE(tipText(kHowToTip).find("\r\n"), std::string::npos);
  EXPECT_EQ(tipText(kHowToTip).find("/n"), std::string::npos);
}

TEST(tip_text, every_tip_is_a_question) {
  for (int tip = 1; tip <= tipCount(); ++tip) EXPECT_TRUE(tipText(tip).ends_with('?')) << tip;
}

}  // namespace
}  // namespace odmiennik::app
