// SPDX-License-Identifier: GPL-3.0-or-later
// The 84 built-in verbs as a numbered table and as they are looked up.
#include "dictionary/builtin_verbs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "engine/normalization.h"
#include "engine/slots.h"
#include "engine/string_table.h"
#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::dictionary {
namespace {

using engine::textOf;
using odmiennik::testing::french;

// The order is that of the identifiers.
constexpr std::string_view kInfinitives[] = {
    "aller",     "advenir",      "avoir",       "être",       "offrir",     "mourir",
    "défaillir", "souffrir",     "prévoir",     "surseoir",   "savoir",     "pouvoir",
    "résoudre",  "naître",       "circoncire",  "maudire",    "suffire",    "croître",
    "taire",     "croire",       "braire",      "choir",      "clore",      "cafeter",
    "bruire",    "déchoir",      "échoir",      "écloper",    "enclore",    "éclore",
    "foutre",    "contrefoutre", "débecqueter", "débequeter", "s'ensuivre", "faillir",
    "ficher",    "frire",        "gésir",       "paître",     "falloir",    "pleuvoir",
    "caleter",   "refoutre",     "saillir",     "reclore",    "occire",     "parfaire",
    "quérir",    "rassir",       "ravoir",      "reclure",    "autor",      "renaître",
    "accroire",  "adirer",       "apparoir",    "assavoir",   "avérer",     "bayer",
    "béer",      "bienvenir",    "chaloir",     "comparoir",  "courre",     "déclore",
    "douer",     "endêver",      "ester",       "férir",      "forclore",   "forfaire",
    "impartir",  "incomber",     "issir",       "malfaire",   "mécroire",   "méfaire",
    "seoir",     "messeoir",     "stupéfaire",  "moufeter",   "ouïr",       "pozdrowienia"};

constexpr int kFlag = 101;

std::string_view entryOf(int verb, int slot) { return textOf(4000 + 102 * (verb - 1) + slot); }

TEST(builtin_verbs, are_84_in_their_order) {
  ASSERT_EQ(std::size(kInfinitives), 84U);
  EXPECT_EQ(textOf(3000), "84");
  for (int verb = 1; verb <= 84; ++verb)
    EXPECT_EQ(testing::utf8(textOf(3000 + verb)), kInfinitives[verb - 1]) << verb;
}

TEST(builtin_verbs, have_their_infinitive_in_slot_96) {
  for (int verb = 1; verb <= 84; ++verb)
    EXPECT_EQ(entryOf(verb, engine::slot::kInfinitive), textOf(3000 + verb)) << verb;
}

TEST(builtin_verbs, are_stored_without_an_empty_text) {
  for (int identifier = 4000; identifier <= 12567; ++identifier)
    ASSERT_FALSE(textOf(identifier).empty()) << identifier;
}

TEST(builtin_verbs, have_the_flag_zero_where_the_auxiliary_is_etre) {
  const std::set<std::string> withEtre{"aller",     "advenir",      "mourir",     "naître",
                                       "échoir",    "contrefoutre", "s'ensuivre", "renaître",
                                       "bienvenir", "issir"};
  int withAvoir = 0;
  for (int verb = 1; verb <= 84; ++verb) {
    const bool isEtre = withEtre.contains(testing::utf8(textOf(3000 + verb)));
    EXPECT_EQ(entryOf(verb, kFlag), isEtre ? "0" : "1") << verb;
    withAvoir += !isEtre;
  }
  EXPECT_EQ(withAvoir, 74);
}

TEST(builtin_verbs, are_loaded_with_empty_forms_for_missing_ones) {
  engine::FormTable forms;
  forms[0] = "left over";
  ASSERT_TRUE(BuiltinVerbTable().load("advenir", forms));
  EXPECT_EQ(forms[0], "");
  EXPECT_EQ(forms[2], "advient");
}

TEST(builtin_verbs, keep_a_placeholder) {
  engine::FormTable forms;
  ASSERT_TRUE(BuiltinVerbTable().load("aller", forms));
  EXPECT_EQ(forms[6], "*");
}

TEST(builtin_verbs, are_found_without_their_reflexive_prefix) {
  engine::FormTable forms;
  ASSERT_TRUE(BuiltinVerbTable().load("ensuivre", forms));
  EXPECT_EQ(forms[96], "s'ensuivre");
  EXPECT_FALSE(BuiltinVerbTable().load("s'ensuivre", forms));
}

TEST(builtin_verbs, are_found_by_every_key) {
  const BuiltinVerbTable table;
  engine::FormTable forms;
  for (const std::string_view infinitive : kInfinitives) {
    const std::string key(engine::withoutReflexivePrefix(french(infinitive)));
    ASSERT_TRUE(table.load(key, forms)) << infinitive;
    EXPECT_EQ(forms[96], french(infinitive));
  }
}

TEST(builtin_verbs, hold_nothing_else) {
  engine::FormTable forms;
  for (const char* key : {"", "parler", "Aller", "alle", "aller "})
    EXPECT_FALSE(BuiltinVerbTable().load(key, forms)) << key;
}

TEST(string_table, holds_as_many_tips_as_it_says) {
  EXPECT_EQ(textOf(40), "21");
  for (int identifier = 41; identifier <= 61; ++identifier)
    EXPECT_TRUE(textOf(identifier).ends_with('?')) << identifier;
}

TEST(string_table, has_texts_in_its_ranges_and_nowhere_else) {
  constexpr std::pair<int, int> kRanges[] = {{1, 15},      {20, 27},     {40, 61},     {1000, 1043},
                                             {2000, 2043}, {3000, 3084}, {4000, 12567}};
  for (int identifier = -100; identifier < 20'000; ++identifier) {
    const bool isInside = std::ranges::any_of(kRanges, [&](const auto& range) {
      return identifier >= range.first && identifier <= range.second;
    });
    ASSERT_EQ(!textOf(identifier).empty(), isInside) << identifier;
  }
}

// deliberate: the stored misspelling of "auraient"
TEST(string_table, holds_aurainet_under_2041) { EXPECT_EQ(textOf(2041), "aurainet"); }

}  // namespace
}  // namespace odmiennik::dictionary
