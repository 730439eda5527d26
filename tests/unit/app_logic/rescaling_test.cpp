// SPDX-License-Identifier: GPL-3.0-or-later
// The arithmetic of rescaling, control by control.
#include "app/logic/rescaling.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

constexpr ScreenWidth kScreen{};                    // 800 pixels
constexpr ScreenWidth kSmallScreen{.twips = 9600};  // 640 pixels

bool notAsked() {
  ADD_FAILURE() << "the question of the resolution was put";
  return true;
}

// A window of 12000 x 9000 twips with the given control in it.
Layout layoutOf(const LayoutControl& control) {
  return {.design = {12000, 9000}, .windowFontSize = 8.25F, .controls = {control}};
}

// The control once the window has become a quarter wider and half as high again.
LayoutControl enlarged(const LayoutControl& control) {
  Layout layout = layoutOf(control);
  EXPECT_EQ(RescaleLayout(layout, {15000, 13500}, kScreen, notAsked), Rescaled::rescaled);
  return layout.controls[0];
}

LayoutControl named(Utf8View name, Utf8View tag = {}) {
  return {.name = name,
          .tag = tag,
          .left = 101,
          .top = 33,
          .width = 1003,
          .height = 301,
          .x1 = 10,
          .y1 = 20,
          .x2 = 30,
          .y2 = 41,
          .fontSize = 8};
}

TEST(rescaling, gives_boxes_whole_sizes) {
  for (const Utf8View name :
       {"txtCzasownik", "cmdFrancuskaLitera", "chkFrancuskaLitera", "chkZAvoir",
        "frmInformacjeOCzasowniku", "cmdOdmień", "lblCzas", "lblSubjoncif"}) {
    const LayoutControl control = enlarged(named(name));
    EXPECT_EQ(control.width, 1253.0F) << name;  // 1253.75
    EXPECT_EQ(control.height, 451.0F) << name;  // 451.5
  }
}

TEST(rescaling, takes_a_label_of_the_information_by_its_tag_for_a_box) {
  const LayoutControl control = enlarged(named("picZnak", "labelinf"));
  EXPECT_EQ(control.width, 1253.0F);
  EXPECT_EQ(control.fontSize, 12.0F);
}

TEST(rescaling, the_font_of_a_box_follows_the_height_alone) {
  EXPECT_EQ(enlarged(named("txtCzasownik")).fontSize, 12.0F);
}

TEST(rescaling, the_font_of_the_window_follows_the_height_too) {
  Layout layout = layoutOf(named("txtCzasownik"));
  EXPECT_EQ(RescaleLayout(layout, {12000, 13500}, kScreen, notAsked), Rescaled::rescaled);
  EXPECT_EQ(layout.windowFontSize, 12.375F);
}

TEST(rescaling, keeps_the_fractions_of_shapes) {
  const LayoutControl control = enlarged(named("shpLiniaTrybu"));
  EXPECT_EQ(control.width, 1253.75F);
  EXPECT_EQ(control.height, 451.5F);
  EXPECT_EQ(control.fontSize, 8.0F);
}

TEST(rescaling, moves_both_ends_of_lines_and_nothing_else_of_them) {
  const LayoutControl control = enlarged(named("linLiniaOddzielająca"));
  EXPECT_EQ(control.x1, 12.5F);
  EXPECT_EQ(control.x2, 37.5F);
  EXPECT_EQ(control.y1, 30.0F);
  EXPECT_EQ(control.y2, 61.5F);
  EXPECT_EQ(control.width, 1003.0F);
}

TEST(rescaling, a_control_with_a_tag_moves_whatever_its_kind) {
  for (const Utf8View name : {"txtCzasownik", "shpLiniaTrybu", "picZnak"}) {
    const LayoutControl control = enlarged(named(name, "x"));
    EXPECT_EQ(control.left, 126.25F) << name;
    EXPECT_EQ(control.top, 49.5F) << name;
  }
}

TEST(rescaling, deliberate_a_control_without_a_tag_keeps_its_place_though_it_grows) {
  const LayoutControl control = enlarged(named("txtCzasownik"));
  EXPECT_EQ(control.left, 101.0F);
  EXPECT_EQ(control.top, 33.0F);
  EXPECT_EQ(control.width, 1253.0F);
}

TEST(rescaling, leaves_the_size_of_other_controls) {
  const LayoutControl control = enlarged(named("cmdZamknij"));
  EXPECT_EQ(control.width, 1003.0F);
  EXPECT_EQ(control.fontSize, 8.0F);
}

TEST(rescaling, compares_names_exactly) {
  EXPECT_EQ(scaledAs("txtCzasownik", ""), ScaledAs::box);
  EXPECT_EQ(scaledAs("TxtCzasownik", ""), ScaledAs::nothing);
  EXPECT_EQ(scaledAs("txtCzasowniki", ""), ScaledAs::nothing);
  EXPECT_EQ(scaledAs("LblCzas", ""), ScaledAs::nothing);
  EXPECT_EQ(scaledAs("Shp", ""), ScaledAs::nothing);
  EXPECT_EQ(scaledAs("shpX", "labelinf"), ScaledAs::box);
  EXPECT_EQ(scaledAs("linX", ""), ScaledAs::line);
}

TEST(rescaling, keeps_the_last_factors_and_the_design_size) {
  Layout layout = layoutOf(named("lblCzas"));
  EXPECT_EQ(RescaleLayout(layout, {15000, 13500}, kScreen, notAsked), Rescaled::rescaled);
  EXPECT_EQ(layout.horizontalFactor, 1.25F);
  EXPECT_EQ(layout.verticalFactor, 1.5F);
  EXPECT_EQ(layout.design, (TwipSize{12000, 9000}));
}

TEST(rescaling, to_the_same_size_changes_nothing_and_asks_nothing) {
  Layout layout = layoutOf(named("lblCzas", "x"));
  layout.horizontalFactor = 3;
  EXPECT_EQ(RescaleLayout(layout, {12000, 9000}, kSmallScreen, notAsked), Rescaled::unchanged);
  EXPECT_EQ(layout.controls[0].width, 1003.0F);
  EXPECT_EQ(layout.controls[0].left, 101.0F);
  EXPECT_EQ(layout.horizontalFactor, 3.0F);
}

TEST(rescaling, on_a_screen_below_800_pixels_goes_on_when_the_user_agrees) {
  Layout layout = layoutOf(named("lblCzas"));
  int questions = 0;
  const auto agrees = [&questions] { return ++questions > 0; };
  EXPECT_EQ(resizeLayout(layout, {9600, 7200}, false, kSmallScreen, agrees), Rescaled::rescaled);
  EXPECT_EQ(resizeLayout(layout, {9000, 7200}, false, kSmallScreen, agrees), Rescaled::rescaled);
  EXPECT_EQ(questions, 2);
}

TEST(rescaling, on_a_screen_below_800_pixels_ends_without_touching_a_control) {
  Layout layout = layoutOf(named("lblCzas", "x"));
  const auto refuses = [] { return false; };
  EXPECT_EQ(resizeLayout(layout, {9600, 7200}, false, kSmallScreen, refuses), Rescaled::ended);
  EXPECT_EQ(layout.controls[0].width, 1003.0F);
  EXPECT_EQ(layout.controls[0].left, 101.0F);
  EXPECT_EQ(layout.windowFontSize, 8.25F);
}

TEST(rescaling, counts_a_screens_pixels_by_its_own_twips) {
  EXPECT_FALSE((ScreenWidth{.twips = 12000, .twipsPerPixel = 15}).isTooSmall());
  EXPECT_TRUE((ScreenWidth{.twips = 11985, .twipsPerPixel = 15}).isTooSmall());
  EXPECT_FALSE((ScreenWidth{.twips = 9600, .twipsPerPixel = 12}).isTooSmall());
  const float atTwentyPercentMore = 15 / 1.2F;
  EXPECT_FALSE((ScreenWidth{800 * atTwentyPercentMore, atTwentyPercentMore}).isTooSmall());
  EXPECT_TRUE((ScreenWidth{799 * atTwentyPercentMore, atTwentyPercentMore}).isTooSmall());
}

TEST(resizing, takes_the_new_size_as_the_design_size) {
  Layout layout = layoutOf(named("lblCzas"));
  EXPECT_EQ(resizeLayout(layout, {15000, 13500}, false, kScreen, notAsked), Rescaled::rescaled);
  EXPECT_EQ(layout.design, (TwipSize{15000, 13500}));
  EXPECT_EQ(resizeLayout(layout, {15000, 13500}, false, kScreen, notAsked), Rescaled::unchanged);
}

TEST(resizing, leaves_a_minimised_window_alone) {
  Layout layout = layoutOf(named("lblCzas"));
  EXPECT_EQ(resizeLayout(layout, {2400, 0}, true, kSmallScreen, notAsked), Rescaled::unchanged);
  EXPECT_EQ(layout.design, (TwipSize{12000, 9000}));
  EXPECT_EQ(layout.controls[0].width, 1003.0F);
}

TEST(resizing, restored_from_minimised_rescales_only_to_another_size) {
  Layout layout = layoutOf(named("lblCzas"));
  EXPECT_EQ(resizeLayout(layout, {2400, 0}, true, kScreen, notAsked), Rescaled::unchanged);
  EXPECT_EQ(resizeLayout(layout, {12000, 9000}, false, kScreen, notAsked), Rescaled::unchanged);
  EXPECT_EQ(resizeLayout(layout, {15000, 9000}, false, kScreen, notAsked), Rescaled::rescaled);
}

TEST(resizing, there_and_back_loses_less_than_two_twips_of_a_box) {
  Layout layout = layoutOf(named("txtCzasownik"));
  EXPECT_EQ(resizeLayout(layout, {15000, 13500}, false, kScreen, notAsked), Rescaled::rescaled);
  EXPECT_EQ(resizeLayout(layout, {12000, 9000}, false, kScreen, notAsked), Rescaled::rescaled);
  EXPECT_EQ(layout.controls[0].width, 1002.0F);
}

}  // namespace
}  // namespace odmiennik::app
