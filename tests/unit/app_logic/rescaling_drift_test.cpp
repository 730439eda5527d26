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
  for (const std::string_view name : {"txtCzasownik", "shpLiniaTrybu", "linLiniaOddzielająca"})
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
