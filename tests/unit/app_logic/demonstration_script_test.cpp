// SPDX-License-Identifier: GPL-3.0-or-later
// The scripts of the demonstrations and the pointer's way.
#include "app/logic/demonstration_script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "dictionary/verb_index.h"
#include "engine/windows1252.h"

namespace odmiennik::app {
namespace {

using enum DemonstrationAction;
using enum DemonstrationPlace;
using Actions = std::vector<DemonstrationAction>;
using Places = std::vector<DemonstrationPlace>;

Places clicksOf(Demonstration demonstration) {
  Places places;
  for (const DemonstrationStep& step : stepsOf(demonstration))
    if (step.action == click) places.push_back(step.place);
  return places;
}

TEST(demonstration_script, the_first_clicks_into_the_box_types_and_conjugates) {
  Actions actions;
  for (const DemonstrationStep& step : stepsOf(Demonstration::typing))
    actions.push_back(step.action);
  EXPECT_EQ(actions, (Actions{movePointer, click, typeVerb, pressEnter, rest}));
  EXPECT_EQ(clicksOf(Demonstration::typing), Places{entryBox});
}

TEST(demonstration_script, the_second_goes_through_the_menu_and_the_list) {
  EXPECT_EQ(clicksOf(Demonstration::picking),
            (Places{verbMenu, listItem, letterChoice, letter, verb, conjugateButton, closeButton}));
}

TEST(demonstration_script, the_pointer_is_moved_to_a_place_before_it_is_clicked) {
  for (const auto demonstration : {Demonstration::typing, Demonstration::picking}) {
    const auto steps = stepsOf(demonstration);
    for (std::size_t i = 0; i < steps.size(); ++i) {
      if (steps[i].action != click) continue;
      ASSERT_GT(i, 0U);
      EXPECT_EQ(steps[i - 1].action, movePointer);
      EXPECT_EQ(steps[i - 1].place, steps[i].place);
    }
  }
}

TEST(demonstration_script, the_eye_has_time_for_every_step) {
  using std::chrono::milliseconds;
  for (const auto demonstration : {Demonstration::typing, Demonstration::picking})
    for (const DemonstrationStep& step : stepsOf(demonstration)) {
      EXPECT_GE(step.pause, milliseconds(200));
      EXPECT_LE(step.pause, milliseconds(3000));
    }
}

TEST(demonstration_script, both_verbs_are_in_the_index) {
  dictionary::GeneralVerbIndex index;
  for (const Utf8View verb : {kTypedVerb, kPickedVerb})
    EXPECT_FALSE(index.record(engine::fromUtf8(verb).text).empty()) << verb;
}

TEST(demonstration_script, the_picked_verb_is_filed_under_its_first_letter) {
  const std::string verb = engine::fromUtf8(kPickedVerb).text;
  const int count = dictionary::verbCount(kPickedVerb.front());
  int found = 0;
  for (int k = 1; k <= count; ++k)
    found += dictionary::verbOfLetter(kPickedVerb.front(), k) == verb ? 1 : 0;
  EXPECT_EQ(found, 1);
}

TEST(pointer_path, ends_where_it_shall_and_is_never_empty) {
  EXPECT_EQ(pathOf({10, 20}, {700, 90}).back(), (ScreenPoint{700, 90}));
  EXPECT_EQ(pathOf({5, 5}, {5, 5}), (std::vector<ScreenPoint>{{5, 5}}));
  EXPECT_EQ(pathOf({-50, 0}, {-900, -7}).back(), (ScreenPoint{-900, -7}));
}

TEST(pointer_path, never_turns_back) {
  const auto path = pathOf({900, 10}, {100, 600});
  EXPECT_TRUE(std::ranges::is_sorted(path, std::greater{}, &ScreenPoint::x));
  EXPECT_TRUE(std::ranges::is_sorted(path, std::less{}, &ScreenPoint::y));
}

TEST(pointer_path, has_no_jumps) {
  ScreenPoint last{0, 0};
  for (const ScreenPoint& point : pathOf(last, {1900, 1000})) {
    EXPECT_LE(std::hypot(point.x - last.x, point.y - last.y), 60);
    last = point;
  }
}

TEST(pointer_path, begins_and_ends_slower_than_it_runs_in_the_middle) {
  const auto path = pathOf({0, 0}, {600, 0});
  const std::size_t middle = path.size() / 2;
  const int inTheMiddle = path[middle].x - path[middle - 1].x;
  EXPECT_LT(path.front().x, inTheMiddle);
  EXPECT_LT(600 - path[path.size() - 2].x, inTheMiddle);
}

TEST(pace, makes_intervals_longer_or_shorter_down_to_nothing) {
  using std::chrono::milliseconds;
  EXPECT_EQ(paced(milliseconds(250), 1), milliseconds(250));
  EXPECT_EQ(paced(milliseconds(250), 2), milliseconds(500));
  EXPECT_EQ(paced(milliseconds(250), 0.01), milliseconds(3));
  EXPECT_EQ(paced(milliseconds(250), 0), milliseconds(0));
  EXPECT_EQ(paced(milliseconds(250), -1), milliseconds(0));
}

}  // namespace
}  // namespace odmiennik::app
