// The French literal: readable in the source, Windows-1252 in the program.
#include <gtest/gtest.h>

#include "engine/french.h"

namespace odmiennik::engine {
namespace {

TEST(FrenchLiteral, IsOneByteALetter) {
  EXPECT_EQ("été"_fr, "\xE9t\xE9");
  EXPECT_EQ("œuvrer"_fr.size(), 6U);
}

TEST(FrenchLiteral, MayBeEmpty) { EXPECT_EQ(""_fr, std::string_view{}); }

TEST(FrenchLiteral, IsMadeByTheCompiler) {
  static_assert("haïr"_fr.size() == 4);
  static_assert("haïr"_fr[2] == '\xEF');
  SUCCEED();
}

TEST(FrenchLiteral, EqualsWhatTheConverterMakes) {
  EXPECT_EQ("àâçèéêëîïôùûüÿæœÀÂÇÈÉÊËÎÏÔÙÛÜŸÆŒ’€"_fr,
            fromUtf8("àâçèéêëîïôùûüÿæœÀÂÇÈÉÊËÎÏÔÙÛÜŸÆŒ’€").text);
}

}  // namespace
}  // namespace odmiennik::engine
