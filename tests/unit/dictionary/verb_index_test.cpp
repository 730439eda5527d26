// SPDX-License-Identifier: GPL-3.0-or-later
// The general verb index: records, counts, order, completion.
#include "dictionary/verb_index.h"

#include <gtest/gtest.h>

#include <fstream>

#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::dictionary {
namespace {

using odmiennik::testing::french;

std::string record(std::string_view infinitive) {
  return std::string(GeneralVerbIndex().record(french(infinitive)));
}

std::string completed(std::string_view prefix) { return testing::utf8(completion(french(prefix))); }

TEST(verb_index, knows_the_record_of_a_verb) {
  EXPECT_EQ(record("laver"), "|1|1|2|1");
  EXPECT_EQ(record("être"), "|3|2|1|1");
  EXPECT_EQ(record("œuvrer"), "|1|2|1|1");
}

TEST(verb_index, knows_nothing_of_anything_else) {
  for (const char* text : {"", "lave", "Laver", "laver ", "se laver", "etre", "zzz", "resetuj"})
    EXPECT_EQ(record(text), "") << text;
  EXPECT_EQ(record(std::string(10'000, 'a')), "");
}

TEST(verb_index, holds_7342_verbs_filed_under_the_unaccented_first_letter) {
  constexpr int kCounts[] = {526, 329, 742, 1026, 818, 265, 202, 106, 215, 52, 7, 132, 307,
                             70,  97,  526, 22,   942, 450, 314, 16,  152, 1,  0, 4,   21};
  int sum = 0;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    EXPECT_EQ(verbCount(letter), kCounts[letter - 'a']) << letter;
    sum += verbCount(letter);
  }
  EXPECT_EQ(sum, 7342);
  EXPECT_EQ(verbCount(), 7342);
}

TEST(verb_index, has_no_verbs_under_another_character) {
  for (const char letter : {'A', ' ', '\0', '`', '{', '\xE9', '\x9C'})
    EXPECT_EQ(verbCount(letter), 0);
}

TEST(verb_index, files_the_ligature_under_o) {
  std::vector<std::string> found;
  for (int k = 1; k <= verbCount('o'); ++k)
    if (verbOfLetter('o', k).starts_with('\x9C'))
      found.push_back(testing::utf8(verbOfLetter('o', k)));
  EXPECT_EQ(found, (std::vector<std::string>{"œilletonner", "œuvrer"}));
}

TEST(verb_index, files_accented_letters_among_the_others) {
  int accented = 0;
  for (int k = 1; k <= verbCount('e'); ++k) accented += !verbOfLetter('e', k).starts_with('e');
  EXPECT_GT(accented, 100);
}

TEST(verb_index, the_letters_verbs_in_a_row_are_the_whole_index) {
  int position = 0;
  for (char letter = 'a'; letter <= 'z'; ++letter)
    for (int k = 1; k <= verbCount(letter); ++k, ++position)
      ASSERT_EQ(verbOfLetter(letter, k), verbAt(position)) << letter << k;
  EXPECT_EQ(position, verbCount());
  EXPECT_EQ(verbAt(0), "abaisser");
  EXPECT_EQ(verbAt(7341), "zyeuter");
}

TEST(verb_index, every_verb_has_a_record_of_its_own_name) {
  GeneralVerbIndex index;
  for (int position = 0; position < verbCount(); ++position)
    ASSERT_GE(index.record(verbAt(position)).size(), 8U) << position;
}

TEST(verb_index, completes_to_the_verb_itself) {
  EXPECT_EQ(completed("parler"), "parler");
  EXPECT_EQ(completed("être"), "être");
}

TEST(verb_index, completes_to_the_first_verb_in_its_order) {
  EXPECT_EQ(completed("all"), "allaiter");
  EXPECT_EQ(completed("parl"), "parlementer");
  EXPECT_EQ(completed("é"), "ébahir");
  EXPECT_EQ(completed("œ"), "œilletonner");
}

TEST(verb_index, completes_nothing_that_no_verb_begins_with) {
  for (const char* prefix : {"", "etre", "oe", "Parl", " parl", "parlerait", "se "})
    EXPECT_EQ(completed(prefix), "") << prefix;
}

// The lists were checked by hand; each belongs to a way of conjugating of its own.
class SpecialVerbs : public ::testing::TestWithParam<const char*> {
 protected:
  static std::vector<std::string> lines(const std::string& list) {
    std::ifstream file(ODMIENNIK_SOURCE_DIR "/tests/unit/dictionary/special_verbs/" + list +
                       ".txt");
    std::vector<std::string> found;
    for (std::string line; std::getline(file, line);)
      if (!line.starts_with('#')) found.push_back(line);
    return found;
  }
};

TEST_P(SpecialVerbs, have_their_records) {
  const auto verbs = lines(GetParam());
  ASSERT_GE(verbs.size(), 17U);
  for (const std::string& line : verbs) {
    const auto tab = line.find('\t');
    EXPECT_EQ(record(line.substr(0, tab)), line.substr(tab + 1)) << line;
  }
}

INSTANTIATE_TEST_SUITE_P(Lists, SpecialVerbs,
                         ::testing::Values("avoir_ou_etre", "decided", "etre", "group4", "h_aspire",
                                           "impersonal", "pronominal"),
                         [](const auto& list) { return std::string(list.param); });

TEST_F(SpecialVerbs, with_a_mute_h_have_no_mark) {
  const auto verbs = lines("h_muet");
  ASSERT_EQ(verbs.size(), 50U);
  for (const std::string& verb : verbs) EXPECT_TRUE(record(verb).starts_with('|')) << verb;
}

}  // namespace
}  // namespace odmiennik::dictionary
