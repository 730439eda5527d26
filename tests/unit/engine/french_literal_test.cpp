// SPDX-License-Identifier: GPL-3.0-or-later
// The French literal: readable in the source, Windows-1252 in the program.
#include <gtest/gtest.h>

#include "engine/french.h"

namespace odmiennik::engine {
namespace {

TEST(french_literal, is_one_byte_a_letter) {
  EXPECT_EQ("été"_fr, "\xE9t\xE9");
  EXPECT_EQ("œuvrer"_fr.size(), 6U);
}

TEST(french_literal, may_be_empty) { EXPECT_EQ(""_fr, std::string_view{}); }

TEST(french_literal, is_made_by_the_compiler) {
  static_assert("haïr"_fr.size() == 4);
  static_assert("haïr"_fr[2] == '\xEF');
  SUCCEED();
}

TEST(french_literal, equals_what_the_converter_makes) {
  EXPECT_EQ("àâçèéêëîïôùûüÿæœÀÂÇÈÉÊËÎÏÔÙÛÜŸÆŒ’€"_fr,
            fromUtf8("àâçèéêëîïôùûüÿæœÀÂÇÈÉÊËÎÏÔÙÛÜŸÆŒ’€").text);
}

}  // namespace
}  // namespace odmiennik::engine
