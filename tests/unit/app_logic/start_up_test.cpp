// SPDX-License-Identifier: GPL-3.0-or-later
// The start of the program.
#include "app/logic/start_up.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

TEST(start_up, shows_the_version_in_the_caption) {
  EXPECT_EQ(captionWithVersion({1, 0, 12}), "Odmiennik v.1.0.12");
}

TEST(start_up, names_the_help_file_behind_a_separator_in_every_case) {
  EXPECT_EQ(helpFilePath("C:\\Odmiennik", '\\'), "C:\\Odmiennik\\Werbolin.chm");
  EXPECT_EQ(helpFilePath("C:\\", '\\'), "C:\\\\Werbolin.chm");
}

TEST(start_up, names_the_character_map_like_a_file_of_its_own_folder) {
  EXPECT_TRUE(characterMapPath("C:\\WINDOWS").ends_with("CHARMAP.EXE"));
  EXPECT_EQ(characterMapPath("C:\\WINDOWS").size(), std::string("C:\\WINDOWS\\CHARMAP.EXE").size());
  EXPECT_EQ(characterMapPath("C:\\"), "CHARMAP.EXE");
}

TEST(start_up, rescales_unless_the_screen_is_800_pixels_wide) {
  EXPECT_FALSE(isRescaledAtStart(12000));
  EXPECT_TRUE(isRescaledAtStart(9600));
  EXPECT_TRUE(isRescaledAtStart(15360));
}

TEST(counters, grow_by_one_and_stay_at_their_greatest_number) {
  std::int32_t counter = 2147483646;
  countOne(counter);
  EXPECT_EQ(counter, 2147483647);
  countOne(counter);
  EXPECT_EQ(counter, 2147483647);
}

}  // namespace
}  // namespace odmiennik::app
