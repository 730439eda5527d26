// SPDX-License-Identifier: GPL-3.0-or-later
// What a line asks.
#include "cli/question.h"

#include <gtest/gtest.h>

#include "engine/french.h"

namespace odmiennik::cli {
namespace {

using namespace engine::literals;

Question ask(Utf8View bytes, bool isCut = false) {
  return questionOf({.number = 1, .bytes = bytes, .isCut = isCut});
}

TEST(question, an_infinitive_becomes_windows_1252_and_stays_as_typed) {
  const Question question = ask("  Être ");
  EXPECT_EQ(question.infinitive, "  Être "_fr);
  EXPECT_EQ(question.typed, "  Être ");
  EXPECT_FALSE(question.record);
}

TEST(question, a_record_stands_behind_the_first_tab) {
  const Question question = ask("fêter\th\xC3\xA9|1\t|");
  EXPECT_EQ(question.infinitive, "fêter"_fr);
  EXPECT_EQ(question.typed, "fêter");
  EXPECT_EQ(question.record, "hé|1\t|"_fr);
}

TEST(question, nothing_behind_the_tab_is_the_empty_record) { EXPECT_EQ(ask("aller\t").record, ""); }

TEST(question, a_letter_outside_windows_1252_is_named) {
  const Question question = ask("łapać");
  EXPECT_EQ(question.fault, QuestionFault::letterOutside);
  EXPECT_EQ(question.typed, "łapać");
  EXPECT_EQ(faultSentence(question), "znaku „ł” (U+0142) nie ma w zestawie Windows-1252.");
}

TEST(question, a_control_character_outside_windows_1252_is_not_printed) {
  EXPECT_EQ(faultSentence(ask("\xC2\x85")), "znaku U+0085 nie ma w zestawie Windows-1252.");
}

TEST(question, what_acts_on_a_terminal_and_a_bare_accent_are_told_by_number) {
  EXPECT_EQ(faultSentence(ask("a\u202E")), "znaku U+202E nie ma w zestawie Windows-1252.");
  EXPECT_EQ(faultSentence(ask("s\u0301")), "znaku U+0301 nie ma w zestawie Windows-1252.");
}

TEST(question, a_byte_that_is_no_utf8_is_named_with_its_place) {
  const Question question = ask("al\xFFler");
  EXPECT_EQ(question.fault, QuestionFault::notUtf8);
  EXPECT_EQ(question.typed, "al\uFFFDler");
  EXPECT_EQ(faultSentence(question), "bajt 0xFF na pozycji 3 nie należy do tekstu UTF-8.");
}

TEST(question, a_bad_record_refuses_the_line_too) {
  EXPECT_EQ(ask("aller\t\xFF").fault, QuestionFault::notUtf8);
}

TEST(question, a_cut_line_is_refused_with_what_was_kept_of_it) {
  const Question question = ask("aller", true);
  EXPECT_EQ(question.fault, QuestionFault::tooLong);
  EXPECT_EQ(question.typed, "aller");
  EXPECT_EQ(faultSentence(question), "tekst jest dłuższy niż 65536 bajtów.");
}

TEST(question, a_letter_that_the_cut_went_through_is_dropped) {
  EXPECT_EQ(ask("all\xC3", true).typed, "all");
  EXPECT_EQ(ask("all\xE2\x82", true).typed, "all");
  EXPECT_EQ(ask("allé", true).typed, "allé");
}

TEST(clean_utf8, every_bad_byte_becomes_one_replacement_character) {
  EXPECT_EQ(cleanUtf8("\xFF\xFE"), "\uFFFD\uFFFD");
  EXPECT_EQ(cleanUtf8("é\xC3 \xED\xA0\x80"), "é\uFFFD \uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(cleanUtf8(Utf8View("a\0b", 3)), Utf8View("a\0b", 3));
}

}  // namespace
}  // namespace odmiennik::cli
