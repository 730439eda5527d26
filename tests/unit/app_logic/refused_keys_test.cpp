// SPDX-License-Identifier: GPL-3.0-or-later
// Keys whose letters a box has not taken.
#include "app/logic/refused_keys.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

TEST(refused_keys, a_refused_letter_marks_the_key_that_went_down_last) {
  RefusedKeys keys;
  keys.pressed(31);
  keys.pressed(39);
  keys.refuse();
  EXPECT_FALSE(keys.isRefused(31));
  EXPECT_TRUE(keys.isRefused(39));
}

TEST(refused_keys, each_of_two_keys_that_are_down_together_is_remembered) {
  RefusedKeys keys;
  keys.pressed(31);
  keys.refuse();
  keys.pressed(39);
  keys.refuse();
  EXPECT_TRUE(keys.isRefused(31) && keys.isRefused(39));
}

TEST(refused_keys, a_key_pressed_anew_is_asked_anew) {
  RefusedKeys keys;
  keys.pressed(31);
  keys.refuse();
  keys.pressed(31);
  EXPECT_FALSE(keys.isRefused(31));
}

TEST(refused_keys, a_text_without_a_key_is_a_key_of_its_own) {
  RefusedKeys keys;
  keys.refuse();
  EXPECT_TRUE(keys.isRefused(kNoPhysicalKey));
  keys.pressed(kNoPhysicalKey);
  EXPECT_FALSE(keys.isRefused(kNoPhysicalKey));
}

}  // namespace
}  // namespace odmiennik::app
