// SPDX-License-Identifier: GPL-3.0-or-later
// The names of files in which conjugations are saved.
#include "app/logic/saved_kinds.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

SavedName asPdf(Utf8View path) { return savedName(path, SavedKind::pdf); }

TEST(saved_kinds, each_is_offered_with_its_pattern) {
  EXPECT_EQ(filterOf(SavedKind::pdf), "Strona do druku, PDF (*.pdf)");
  EXPECT_EQ(filterOf(SavedKind::anki), "Karty do nauki, Anki (*.txt)");
}

TEST(saved_kinds, a_name_without_a_suffix_gets_that_of_the_chosen_kind) {
  EXPECT_EQ(asPdf("/a/finir").path, "/a/finir.pdf");
  EXPECT_EQ(savedName("/a/finir", SavedKind::csv).path, "/a/finir.csv");
}

TEST(saved_kinds, a_suffix_of_some_kind_goes_before_the_chosen_one) {
  EXPECT_EQ(asPdf("/a/finir.csv").kind, SavedKind::csv);
  EXPECT_EQ(asPdf("/a/finir.csv").path, "/a/finir.csv");
  EXPECT_EQ(asPdf("/a/finir.HTM").kind, SavedKind::html);
  EXPECT_EQ(asPdf("/a/finir.Html").kind, SavedKind::html);
}

TEST(saved_kinds, what_only_looks_like_a_suffix_is_a_part_of_the_name) {
  EXPECT_EQ(asPdf("/a/lekcja 3.1").path, "/a/lekcja 3.1.pdf");
  EXPECT_EQ(asPdf("/a.csv/finir").path, "/a.csv/finir.pdf");
  EXPECT_EQ(asPdf("/a/.csv").path, "/a/.csv.pdf");
  EXPECT_EQ(asPdf("pdf").path, "pdf.pdf");
}

TEST(saved_kinds, a_suffix_can_be_taken_away_again) {
  EXPECT_EQ(withoutSuffix("/a/finir.pdf"), "/a/finir");
  EXPECT_EQ(withoutSuffix("/a/finir.1"), "/a/finir.1");
}

TEST(names_of_files, are_the_verb_where_every_system_takes_it) {
  EXPECT_EQ(fileNameFor("s'enorgueillir"), "s'enorgueillir");
  EXPECT_EQ(fileNameFor("se haïr"), "se haïr");
}

TEST(names_of_files, hold_no_sign_that_a_system_forbids) {
  EXPECT_EQ(fileNameFor("a/b\\c:d*e?f\"g<h>i|j\tk"), "a_b_c_d_e_f_g_h_i_j_k");
  EXPECT_EQ(fileNameFor("../../etc"), "_.._etc");
}

TEST(names_of_files, neither_begin_nor_end_with_a_dot_or_a_blank) {
  EXPECT_EQ(fileNameFor(" .finir. "), "finir");
}

TEST(names_of_files, are_never_empty) {
  EXPECT_EQ(fileNameFor(""), "odmiana");
  EXPECT_EQ(fileNameFor(" . "), "odmiana");
}

TEST(names_of_files, are_never_those_of_a_device) {
  EXPECT_EQ(fileNameFor("Con"), "Con_");
  EXPECT_EQ(fileNameFor("confire"), "confire");
}

TEST(names_of_files, are_cut_between_two_letters) {
  Utf8Text text("a");
  for (int i = 0; i < 100; ++i) text += "é";
  EXPECT_EQ(fileNameFor(text).size(), 99U);
}

}  // namespace
}  // namespace odmiennik::app
