// SPDX-License-Identifier: GPL-3.0-or-later
// How far the layout drifts when the window is resized again and again.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "app/logic/rescaling.h"

namespace odmiennik::app {
namespace {

constexpr TwipSize kDesign{11940, 8220};
constexpr int kTimes = 50;

bool agree() { return true; }

void resize(Layout& layout, TwipSize window) {
  (void)resizeLayout(layout, window, false, ScreenWidth{}, agree);
}

// Boxes, shapes and lines all over a window, of odd sizes.
Layout someLayout() {
  Layout layout{.design = kDesign, .windowFontSize = 8.25F};
  for (const Utf8View name : {"txtCzasownik", "shpLiniaTrybu", "linLiniaOddzielająca"})
    for (int i = 0; i < 100; ++i) {
      const auto odd = static_cast<float>(97 * i + 31);
      layout.controls.push_back({.name = name,
                                 .tag = "x",
                                 .left = odd,
                                 .top = odd / 2,
                                 .width = 300 + odd / 7,
                                 .height = 225 + odd / 11,
                                 .x1 = odd,
                                 .y1 = odd,
                                 .x2 = odd + 7,
                                 .y2 = odd + 9,
                                 .fontSize = 8.25F});
      LayoutControl& control = layout.controls.back();
      control.width = std::trunc(control.width);
      control.height = std::trunc(control.height);
    }
  return layout;
}

struct Drift {
  float place = 0;    // twips, of places, shapes and lines
  float boxLoss = 0;  // twips, of sizes of boxes
  float boxGain = 0;
  float font = 0;  // points

  void add(const LayoutControl& before, const LayoutControl& after) {
    const auto take = [](float& most, float value) { most = std::max(most, value); };
    take(place, std::abs(after.left - before.left));
    take(place, std::abs(after.top - before.top));
    take(place, std::abs(after.x2 - before.x2));
    take(place, std::abs(after.y2 - before.y2));
    take(font, std::abs(after.fontSize - before.fontSize));
    const bool isBox = scaledAs(before.name, before.tag) == ScaledAs::box;
    take(isBox ? boxLoss : place, before.width - after.width);
    take(isBox ? boxLoss : place, before.height - after.height);
    take(isBox ? boxGain : place, after.width - before.width);
    take(isBox ? boxGain : place, after.height - before.height);
  }
};

Drift driftOf(const Layout& before, const Layout& after) {
  Drift drift;
  for (std::size_t i = 0; i < before.controls.size(); ++i)
    drift.add(before.controls[i], after.controls[i]);
  return drift;
}

// A box loses less than a twip at each rescale, and never gains any; everything else keeps its
// place.
void expectLittleDrift(const Drift& drift, float mostBoxLoss) {
  EXPECT_LT(drift.boxLoss, mostBoxLoss);
  EXPECT_EQ(drift.boxGain, 0.0F);
  EXPECT_LT(drift.place, 0.5F);
  EXPECT_LT(drift.font, 0.001F);
}

TEST(rescaling_drift, fifty_maximisations_cost_a_box_less_than_two_twips_each) {
  for (const TwipSize maximised : {TwipSize{15360, 10995}, {20490, 10995}, {28800, 15675}}) {
    const Layout before = someLayout();
    Layout layout = before;
    for (int pair = 0; pair < kTimes; ++pair) {
      resize(layout, maximised);
      resize(layout, kDesign);
    }
    expectLittleDrift(driftOf(before, layout), 2.0F * kTimes);
  }
}

// A drag to a smaller window and back enlarges what was lost while it was small: by 1.5 at most
// here.
TEST(rescaling_drift, fifty_drags_cost_a_box_less_than_two_twips_each) {
  std::mt19937 random(2024);
  std::uniform_int_distribution<int> width(kDesign.width * 2 / 3, 28800);
  std::uniform_int_distribution<int> height(kDesign.height * 2 / 3, 16200);
  const Layout before = someLayout();
  Layout layout = before;
  for (int drag = 0; drag < kTimes; ++drag) resize(layout, {width(random), height(random)});
  resize(layout, kDesign);
  expectLittleDrift(driftOf(before, layout), 2.0F * kTimes);
}

// Two hundred steps of a drag out and back, each with sizes of its own.
void drag(DraggedLayout& layout, int step) {
  layout.begin();
  for (int way = -100; way <= 100; ++way) {
    const int far = step * (100 - std::abs(way));
    (void)layout.resize({kDesign.width + far, kDesign.height + far / 2}, false, {}, agree);
  }
}

void expectSame(const Layout& before, const Layout& after) {
  const Drift drift = driftOf(before, after);
  EXPECT_EQ(before.design, after.design);
  EXPECT_EQ(before.windowFontSize, after.windowFontSize);
  EXPECT_EQ(drift.place, 0.0F);
  EXPECT_EQ(drift.boxLoss, 0.0F);
  EXPECT_EQ(drift.boxGain, 0.0F);
  EXPECT_EQ(drift.font, 0.0F);
}

TEST(drag, out_and_back_leaves_everything_where_it_was) {
  const Layout before = someLayout();
  for (const int step : {15, 31, 97, -15, -29}) {
    DraggedLayout layout(before);
    drag(layout, step);
    layout.end();
    expectSame(before, layout.layout());
  }
}

TEST(drag, rescales_from_the_layout_before_it) {
  DraggedLayout layout(someLayout());
  drag(layout, 15);
  ASSERT_EQ(layout.resize({15000, 10000}, false, {}, agree), Rescaled::rescaled);
  Layout expected = someLayout();
  resize(expected, {15000, 10000});
  expectSame(expected, layout.layout());
}

TEST(drag, the_next_one_starts_from_what_the_first_has_left) {
  DraggedLayout layout(someLayout());
  Layout expected = someLayout();
  for (const TwipSize size : {TwipSize{13000, 9000}, {9000, 6000}, {20000, 15000}}) {
    layout.begin();
    EXPECT_EQ(layout.resize(size, false, {}, agree), Rescaled::rescaled);
    layout.end();
    resize(expected, size);
  }
  expectSame(expected, layout.layout());
}

TEST(drag, a_size_that_is_refused_or_there_already_changes_nothing) {
  const ScreenWidth small{.twips = 9600};
  DraggedLayout layout(someLayout());
  const auto refuses = [] { return false; };
  layout.begin();
  EXPECT_EQ(layout.resize({9000, 6000}, false, small, refuses), Rescaled::ended);
  EXPECT_EQ(layout.resize({2400, 0}, true, small, refuses), Rescaled::unchanged);
  expectSame(someLayout(), layout.layout());
  EXPECT_EQ(layout.resize({9000, 6000}, false, small, agree), Rescaled::rescaled);
  EXPECT_EQ(layout.resize({9000, 6000}, false, small, refuses), Rescaled::unchanged);
}

TEST(rescaling_drift, neighbouring_boxes_never_come_to_overlap) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> size(6000, 30000);
  Layout layout{.design = kDesign};
  for (int i = 0; i < 20; ++i)
    layout.controls.push_back({.name = "txtCzasownik",
                               .tag = "x",
                               .left = static_cast<float>(501 * i),
                               .width = 501,
                               .height = 300});
  for (int drag = 0; drag < kTimes; ++drag) {
    resize(layout, {size(random), size(random)});
    for (std::size_t i = 1; i < layout.controls.size(); ++i) {
      const LayoutControl& left = layout.controls[i - 1];
      EXPECT_LE(left.left + left.width, layout.controls[i].left + 0.5F);
    }
  }
}

}  // namespace
}  // namespace odmiennik::app
