// SPDX-License-Identifier: GPL-3.0-or-later
// The place asked for by "always on top".
#include "app/logic/always_on_top.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

constexpr Screen kScreen{};  // 800 x 600

TEST(always_on_top, deliberate_asks_for_the_screens_twips_as_pixels) {
  EXPECT_EQ(placeOnTop(true, kScreen), (WindowPlace{-4, -4, 12000, 9000}));
}

TEST(always_on_top, switched_off_moves_the_window_to_the_corner) {
  EXPECT_EQ(placeOnTop(false, kScreen), (WindowPlace{0, 0, 12000, 9000}));
}

TEST(always_on_top, rounds_the_shift_to_whole_pixels) {
  const auto shift = [](double twipsPerPixel) {
    return placeOnTop(true, {.twipsPerPixelX = twipsPerPixel}).x;
  };
  EXPECT_EQ(shift(12), -5);
  EXPECT_EQ(shift(10), -6);
  EXPECT_EQ(shift(8), -8);   // -7.5
  EXPECT_EQ(shift(24), -2);  // -2.5
  EXPECT_EQ(shift(7), -9);   // -8.57
}

TEST(always_on_top, each_direction_has_its_own_scale) {
  const Screen screen{.twipsPerPixelX = 15, .twipsPerPixelY = 12};
  EXPECT_EQ(placeOnTop(true, screen), (WindowPlace{-4, -5, 12000, 9000}));
}

TEST(always_on_top, the_size_can_be_limited_to_the_screens) {
  EXPECT_EQ(limitedPlaceOnTop(true, kScreen), (WindowPlace{-4, -4, 800, 600}));
  EXPECT_EQ(limitedPlaceOnTop(false, kScreen), (WindowPlace{0, 0, 800, 600}));
}

TEST(always_on_top, the_window_is_shown_but_not_activated) { EXPECT_EQ(kSetWindowPosFlags, 0x50U); }

}  // namespace
}  // namespace odmiennik::app
