// SPDX-License-Identifier: GPL-3.0-or-later
// The numbered string table: pronouns, captions and the auxiliaries' forms.
#include "engine/string_table.h"

#include <gtest/gtest.h>

#include <vector>

#include "engine/windows1252.h"

namespace odmiennik::engine {
namespace {

Utf8Text textInUtf8(int identifier) { return toUtf8(textOf(identifier)); }

void expectTexts(int first, const std::vector<Utf8Text>& texts) {
  for (std::size_t i = 0; i < texts.size(); ++i)
    EXPECT_EQ(textInUtf8(first + static_cast<int>(i)), texts[i]) << first + static_cast<int>(i);
}

TEST(string_table, holds_the_reflexive_pronouns) {
  expectTexts(1, {"me ", "te ", "se ", "nous ", "vous ", "se "});
  expectTexts(7, {"m'", "t'", "s'", "nous ", "vous ", "s'"});
  expectTexts(13, {"-toi", "-nous", "-vous"});
}

TEST(string_table, holds_the_subjunctive_captions) {
  expectTexts(20,
              {"Il faut que ...", "Il fallait que ...", "Il faut que ...", "Il fallait que ..."});
}

TEST(string_table, holds_il_ne_crois_pas_que_as_it_stands) {
  expectTexts(24, {"Il ne crois pas que ...", "Il ne croyais pas que ...",
                   "Il ne crois pas que ...", "Il ne croyais pas que ..."});
}

TEST(string_table, holds_the_forms_of_etre) {
  expectTexts(1000,
              {"suis",   "es",       "est",     "sommes",  "êtes",   "sont",   "étais",  "étais",
               "était",  "étions",   "étiez",   "étaient", "fus",    "fus",    "fut",    "fûmes",
               "fûtes",  "furent",   "serai",   "seras",   "sera",   "serons", "serez",  "seront",
               "sois",   "sois",     "soit",    "soyons",  "soyez",  "soient", "fusse",  "fusses",
               "fût",    "fussions", "fussiez", "fussent", "serais", "serais", "serait", "serions",
               "seriez", "seraient", "être",    "étant"});
}

TEST(string_table, holds_the_forms_of_avoir_with_aurainet) {
  expectTexts(2000,
              {"ai",     "as",       "a",       "avons",   "avez",   "ont",    "avais",  "avais",
               "avait",  "avions",   "aviez",   "avaient", "eus",    "eus",    "eut",    "eûmes",
               "eûtes",  "eurent",   "aurai",   "auras",   "aura",   "aurons", "aurez",  "auront",
               "aie",    "aies",     "ait",     "ayons",   "ayez",   "aient",  "eusse",  "eusses",
               "eût",    "eussions", "eussiez", "eussent", "aurais", "aurais", "aurait", "aurions",
               "auriez", "aurainet", "avoir",   "ayant"});
}

TEST(string_table, the_infinitive_of_an_auxiliary_is_under_index_42) {
  EXPECT_EQ(toUtf8(auxiliaryForm(0, 42)), "être");
  EXPECT_EQ(auxiliaryForm(1, 42), "avoir");
}

TEST(string_table, the_built_in_verbs_fill_their_range) {
  EXPECT_EQ(textOf(3000), "84");
  EXPECT_EQ(textOf(3001), "aller");
  EXPECT_EQ(textOf(3053), "autor");
  EXPECT_EQ(textOf(3084), "pozdrowienia");
  EXPECT_EQ(textOf(12567), "1");
}

TEST(string_table, slot_seventy_seven_of_the_built_in_avoir_is_aurainet) {
  constexpr int kEntryOfAvoir = 3;
  EXPECT_EQ(textOf(4000 + 102 * (kEntryOfAvoir - 1) + 77), "aurainet");
}

TEST(string_table, tips_are_utf8) {
  for (int identifier = 40; identifier <= 61; ++identifier) {
    std::string_view rest = textOf(identifier);
    EXPECT_FALSE(rest.empty()) << identifier;
    while (!rest.empty()) {
      const int length = decodeUtf8(asUtf8(rest)).length;
      ASSERT_NE(length, 0) << identifier;
      rest.remove_prefix(static_cast<std::size_t>(length));
    }
  }
}

// Two letters of Windows-1252 that would be one of UTF-8 stand side by side in no French word.
TEST(string_table, all_other_texts_are_windows_1252) {
  EXPECT_EQ(textOf(1042), "\xEAtre");
  for (int identifier = 0; identifier <= 12567; ++identifier) {
    if (identifier >= 40 && identifier <= 61) continue;
    const std::string_view text = textOf(identifier);
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool isLetterOfUtf8 = decodeUtf8(asUtf8(text.substr(i))).length > 1;
      EXPECT_FALSE(isLetterOfUtf8) << identifier;
    }
  }
}

TEST(string_table, has_no_text_outside_its_ranges) {
  for (const int identifier : {-1, 0, 16, 19, 28, 39, 62, 999, 1044, 1999, 2044, 2999, 3085, 3999,
                               12568, 1'000'000, -2'147'483'647})
    EXPECT_EQ(textOf(identifier), "") << identifier;
}

}  // namespace
}  // namespace odmiennik::engine
