// SPDX-License-Identifier: GPL-3.0-or-later
// Questions to the verb index and the string table.
#include "cli/index_queries.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace odmiennik::cli {
namespace {

Utf8Text recordOf(Utf8View infinitive) {
  Utf8Text out;
  appendRecord(out, infinitive);
  return out;
}

Utf8Text completionOf(Utf8View prefix) {
  Utf8Text out;
  appendCompletion(out, prefix);
  return out;
}

TEST(index_queries, a_record_is_found_for_what_the_entry_box_would_take) {
  EXPECT_EQ(recordOf("parler"), "|1|1|1|1\n");
  EXPECT_EQ(recordOf("  Se Parler "), "|1|1|1|1\n");
}

TEST(index_queries, there_is_no_record_of_a_verb_outside_the_index) {
  EXPECT_EQ(recordOf("blabler"), "");
  EXPECT_EQ(recordOf("łapać"), "");
  EXPECT_EQ(recordOf("\xFF"), "");
}

TEST(index_queries, a_prefix_is_completed_letter_for_letter) {
  EXPECT_EQ(completionOf("aller"), "aller\n");
  EXPECT_EQ(completionOf("aba"), "abaisser\n");
  EXPECT_EQ(completionOf("Aba"), "");
  EXPECT_EQ(completionOf(""), "");
}

Utf8Text listOf(Utf8View beginning) {
  Utf8Text out;
  const bool hasFound = appendVerbsBeginning(out, beginning);
  EXPECT_EQ(hasFound, !out.empty());
  return out;
}

TEST(index_queries, a_beginning_lists_its_verbs_accents_and_case_aside) {
  EXPECT_EQ(listOf("etei"), "éteindre\n");
  EXPECT_EQ(listOf("ÉTEI"), "éteindre\n");
  EXPECT_EQ(listOf("oeuv"), "œuvrer\n");
  EXPECT_NE(listOf("e").find("\nêtre\n"), Utf8Text::npos);
}

TEST(index_queries, what_no_verb_begins_with_lists_nothing) {
  EXPECT_EQ(listOf("parlez"), "");
  EXPECT_EQ(listOf("żó"), "");
  EXPECT_EQ(listOf("\xFF"), "");
  EXPECT_EQ(listOf(Utf8Text(100, 'a')), "");
}

TEST(index_queries, the_whole_index_is_listed_by_letters_or_at_once) {
  Utf8Text all;
  for (char letter = 'a'; letter <= 'z'; ++letter) all += listOf({&letter, 1});
  EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 7342);
  EXPECT_EQ(listOf(""), all);
}

TEST(index_queries, slots_are_mapped_a_line_each) {
  Utf8Text out;
  EXPECT_TRUE(appendSlots(out, {}));
  EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 1 + 101);
  EXPECT_TRUE(
      out.starts_with("slot\tmood\ttense\tperson\tname\n"
                      "0\tIndicatif\tprésent\tje\tprésent\n"));
  EXPECT_NE(out.find("\n51\tSubjonctif\tprésent\tnous\tsubjonctif présent\n"), std::string::npos);
  EXPECT_TRUE(out.ends_with("\n100\tParticipe\tpassé composé\t\tparticipe passé composé\n"));
}

TEST(index_queries, strings_are_raw_and_ascending) {
  Utf8Text out;
  EXPECT_TRUE(appendStrings(out, {}));
  EXPECT_TRUE(out.starts_with("1\tme \n2\tte \n3\tse \n"));
  EXPECT_NE(out.find("\n2041\taurainet\n"), std::string::npos);
  EXPECT_NE(out.find("\n1042\têtre\n"), std::string::npos);
  int last = 0;
  for (std::size_t start = 0; start < out.size(); start = out.find('\n', start) + 1) {
    const int identifier = std::stoi(std::string(bytesOf(Utf8View(out).substr(start, 6))));
    EXPECT_GT(identifier, last);
    last = identifier;
  }
  EXPECT_EQ(last, 12567);
}

}  // namespace
}  // namespace odmiennik::cli
