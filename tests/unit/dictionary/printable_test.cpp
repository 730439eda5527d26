// SPDX-License-Identifier: GPL-3.0-or-later
// Foreign text on a terminal.
#include "dictionary/printable.h"

#include <gtest/gtest.h>

namespace odmiennik::dictionary {
namespace {

TEST(printable, letters_of_any_alphabet_stay) {
  EXPECT_EQ(printable("zażółć être œ € 日本 😀 e\u0301 \\x1B"),
            "zażółć être œ € 日本 😀 e\u0301 \\x1B");
}

TEST(printable, escape_sequences_are_shown) {
  EXPECT_EQ(printable("\x1b[31mparler\x1b]0;x\x07"), "\\x1B[31mparler\\x1B]0;x\\x07");
}

TEST(printable, every_ascii_control_is_shown) {
  for (int code = 0; code < 0x80; ++code) {
    if (code >= 0x20 && code != 0x7F) continue;
    const Utf8Text shown = printable(Utf8Text(1, static_cast<char>(code)));
    EXPECT_EQ(shown.size(), 4U) << code;
    EXPECT_TRUE(shown.starts_with("\\x")) << code;
  }
}

TEST(printable, the_second_set_of_controls_is_shown) {
  EXPECT_EQ(printable("a\u0085\u009B31m"), "a\\u0085\\u009B31m");
}

TEST(printable, bytes_that_are_no_utf8_are_shown) {
  EXPECT_EQ(printable("\x9B\xFF\xC0\x80\xE2\x80"), "\\x9B\\xFF\\xC0\\x80\\xE2\\x80");
}

TEST(printable, what_turns_the_direction_is_shown) {
  EXPECT_EQ(printable("a\u202Eb\u2066c\u200Fd\u061C"), "a\\u202Eb\\u2066c\\u200Fd\\u061C");
}

TEST(printable, what_is_not_seen_is_shown) {
  EXPECT_EQ(printable("\uFEFFa\u200Bb\u2028c\U000E0001"), "\\uFEFFa\\u200Bb\\u2028c\\U000E0001");
}

TEST(printable, the_neighbours_of_what_acts_stay) {
  for (const char* text : {" ", "~", "\u00A0", "\u2010", "\u2027", "\u202F", "\u205F", "\uFFFD"})
    EXPECT_EQ(printable(text), text);
}

}  // namespace
}  // namespace odmiennik::dictionary
