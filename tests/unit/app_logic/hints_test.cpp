// SPDX-License-Identifier: GPL-3.0-or-later
// The quiet texts of the window.
#include "app/logic/hints.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

TEST(hints, a_refused_letter_is_named) {
  EXPECT_EQ(refusalOf("ś"), "Litery „ś” francuski nie zna.");
}

TEST(hints, several_refused_letters_are_named_once_each) {
  EXPECT_EQ(refusalOf("ść"), "Liter „ś, ć” francuski nie zna.");
  EXPECT_EQ(refusalOf("śćś"), "Liter „ś, ć” francuski nie zna.");
}

TEST(hints, of_many_refused_letters_five_are_named) {
  EXPECT_EQ(refusalOf("ąęśćżźń"), "Liter „ą, ę, ś, ć, ż…” francuski nie zna.");
}

TEST(hints, a_sign_is_no_letter) {
  EXPECT_EQ(refusalOf("→"), "Znaku „→” w pole wpisać nie można.");
  EXPECT_EQ(refusalOf("→😀"), "Znaków „→, 😀” w pole wpisać nie można.");
}

TEST(hints, a_text_without_a_place_to_fill_stays_as_it_is) {
  for (const Utf8View text : kHints) EXPECT_FALSE(text.empty());
  EXPECT_EQ(hint(HintId::letterRefused, "ł"), "Litery „ł” francuski nie zna.");
}

}  // namespace
}  // namespace odmiennik::app
