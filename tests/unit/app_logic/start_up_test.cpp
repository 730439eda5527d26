// The start of the program.
#include "app/logic/start_up.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace odmiennik::app {
namespace {

using enum StartUpStep;

// Whether one step comes before another.
bool precedes(StartUpStep first, StartUpStep second) {
  const auto place = [](StartUpStep step) { return std::ranges::find(kStartUpSteps, step); };
  return place(first) < place(second) && place(second) != kStartUpSteps.end();
}

TEST(start_up, has_sixteen_steps_and_each_once) {
  EXPECT_EQ(kStartUpSteps.size(), 16U);
  EXPECT_EQ(std::set(kStartUpSteps.begin(), kStartUpSteps.end()).size(), 16U);
}

TEST(start_up, works_under_the_hourglass) {
  EXPECT_EQ(kStartUpSteps.front(), StartUpStep::showHourglass);
  EXPECT_EQ(kStartUpSteps.back(), StartUpStep::showPointer);
}

TEST(start_up, takes_the_design_size_and_the_caption_before_the_window_is_seen) {
  EXPECT_TRUE(precedes(takeDesignSize, showWindow));
  EXPECT_TRUE(precedes(showVersionInCaption, showWindow));
  EXPECT_TRUE(precedes(showWindow, selectEntryWord));
}

TEST(start_up, rescales_before_it_reads_the_settings) {
  EXPECT_TRUE(precedes(rescaleForScreen, readSettings));
}

TEST(start_up, counts_the_run_behind_settings_first_start_and_tip) {
  EXPECT_TRUE(precedes(readSettings, checkFirstStart));
  EXPECT_TRUE(precedes(checkFirstStart, showTipOfTheDay));
  EXPECT_TRUE(precedes(showTipOfTheDay, countRun));
}

TEST(start_up, conjugates_the_given_verb_between_first_start_and_tip) {
  EXPECT_TRUE(precedes(checkFirstStart, conjugateGivenVerb));
  EXPECT_TRUE(precedes(conjugateGivenVerb, showTipOfTheDay));
}

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
