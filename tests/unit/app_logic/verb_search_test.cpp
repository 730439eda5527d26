// SPDX-License-Identifier: GPL-3.0-or-later
// Typing into the list of verbs.
#include "app/logic/verb_search.h"

#include <gtest/gtest.h>

#include "dictionary/verb_index.h"
#include "engine/french.h"

namespace odmiennik::app {
namespace {

using namespace engine::literals;
using Entries = std::vector<std::string>;

// Where a word leads that is typed in one go, letter by letter.
std::optional<std::size_t> typed(std::string_view word, const Entries& entries,
                                 std::optional<std::size_t> current = 0) {
  VerbSearch search;
  bool isContinued = false;
  std::optional<std::size_t> found;
  for (const char letter : word) {
    found = search.type(std::string_view(&letter, 1), isContinued, entries, current);
    if (found) current = found;
    isContinued = true;
  }
  return found;
}

Entries verbsOf(char letter) {
  Entries verbs;
  for (int k = 1; k <= dictionary::verbCount(letter); ++k)
    verbs.emplace_back(dictionary::verbOfLetter(letter, k));
  return verbs;
}

TEST(verb_search, finds_an_accented_verb_by_plain_letters) {
  const Entries verbs = verbsOf('e');
  const auto found = typed("etei", verbs);
  ASSERT_TRUE(found);
  EXPECT_EQ(verbs[*found], std::string("éteindre"_fr));
}

TEST(verb_search, finds_it_by_its_own_letters_and_by_capitals_too) {
  const Entries verbs{"aimer", std::string("éteindre"_fr), std::string("œuvrer"_fr)};
  EXPECT_EQ(typed("ét"_fr, verbs), 1U);
  EXPECT_EQ(typed("ETE", verbs), 1U);
  EXPECT_EQ(typed("oeu", verbs), 2U);
  EXPECT_EQ(typed("œu"_fr, verbs), 2U);
}

TEST(verb_search, stays_on_an_entry_while_more_of_it_is_typed) {
  EXPECT_EQ(typed("fini", {"aimer", "finir", "finasser"}), 1U);
}

TEST(verb_search, goes_round_the_end) {
  EXPECT_EQ(typed("ai", {"aimer", "finir", "parler"}, 2), 0U);
}

TEST(verb_search, visits_all_verbs_of_a_letter_that_is_typed_again_and_again) {
  const Entries verbs{"parler", "aimer", "passer", "payer"};
  EXPECT_EQ(typed("p", verbs, 1), 2U);
  EXPECT_EQ(typed("pp", verbs, 1), 3U);
  EXPECT_EQ(typed("ppp", verbs, 1), 0U);
}

TEST(verb_search, begins_anew_after_a_pause) {
  VerbSearch search;
  const Entries verbs{"aimer", "finir", "parler"};
  EXPECT_EQ(search.type("p", false, verbs, 0), 2U);
  EXPECT_EQ(search.type("f", false, verbs, 2), 1U);
}

TEST(verb_search, finds_nothing_where_no_verb_begins_so) {
  EXPECT_FALSE(typed("xy", {"aimer", "finir"}));
  EXPECT_FALSE(typed("a", {}));
  EXPECT_FALSE(typed("a", {}, std::nullopt));
}

TEST(verb_search, takes_a_key_without_a_french_letter_for_none) {
  VerbSearch search;
  EXPECT_FALSE(search.type("", false, {"aimer"}, 0));
}

}  // namespace
}  // namespace odmiennik::app
