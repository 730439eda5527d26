// SPDX-License-Identifier: GPL-3.0-or-later
// Hyphens and blanks at which no line may end.
#include "tools/build_help/typesetting.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/help/help_page.h"

namespace odmiennik::tools {
namespace {

TEST(typesetting, an_ending_keeps_its_hyphen) {
  EXPECT_EQ(typeset("końcówki -ons, -ez i <b>-issent</b>"),
            "końcówki \u2011ons, \u2011ez i&nbsp;<b>\u2011issent</b>");
}

TEST(typesetting, a_part_inside_a_word_keeps_both_its_hyphens) {
  EXPECT_EQ(typeset("wstawka -iss- znika"), "wstawka \u2011iss\u2011 znika");
}

TEST(typesetting, an_ending_begins_with_an_accented_letter_too) {
  EXPECT_EQ(typeset("na -ér i -ę"), "na \u2011ér i&nbsp;\u2011ę");
}

TEST(typesetting, a_range_of_numbers_stays_together) {
  EXPECT_EQ(typeset("strony 10-12"), "strony 10\u201112");
}

TEST(typesetting, a_hyphen_between_two_words_may_end_a_line_of_text) {
  EXPECT_EQ(typeset("<i>parlez-vous</i>"), "<i>parlez-vous</i>");
  EXPECT_EQ(typeset("plus-<b>que</b>-parfait"), "plus-<b>que</b>-parfait");
}

TEST(typesetting, a_form_in_a_table_is_never_broken) {
  EXPECT_EQ(typeset("<table class=\"odmiana\"><tr><td>va-t-il</td></tr></table> va-t-il"),
            "<table class=\"odmiana\"><tr><td>va\u2011t\u2011il</td></tr></table> va-t-il");
}

TEST(typesetting, a_dash_of_its_own_stays) {
  EXPECT_EQ(typeset("to - tamto – --"), "to - tamto – --");
}

TEST(typesetting, a_polish_word_of_one_letter_does_not_hang) {
  EXPECT_EQ(typeset("<p>I w domu, i z psem; O tym a <i>tym</i></p>"),
            "<p>I&nbsp;w&nbsp;domu, i&nbsp;z&nbsp;psem; O&nbsp;tym a&nbsp;<i>tym</i></p>");
}

TEST(typesetting, a_french_word_of_one_letter_does_not_hang) {
  EXPECT_EQ(typeset("<i lang=\"fr\">il y a à Paris</i>"),
            "<i lang=\"fr\">il y&nbsp;a&nbsp;à&nbsp;Paris</i>");
}

TEST(typesetting, a_word_of_one_letter_is_seen_through_marks) {
  EXPECT_EQ(typeset("<b>w</b> domu, (z domu)"), "<b>w</b>&nbsp;domu, (z&nbsp;domu)");
}

TEST(typesetting, at_the_end_of_a_typed_line_too) {
  EXPECT_EQ(typeset("psy w\ndomu"), "psy w&nbsp;domu");
}

TEST(typesetting, the_last_letter_of_a_word_is_no_word) {
  EXPECT_EQ(typeset("para psów, j'y vais, 3a tak"), "para psów, j'y vais, 3a tak");
  EXPECT_EQ(typeset("po <b>u</b>rz<b>a</b> tu"), "po <b>u</b>rz<b>a</b> tu");
}

TEST(typesetting, the_end_of_a_paragraph_binds_nothing) {
  EXPECT_EQ(typeset("<p>litera a </p>\n<p>-</p>"), "<p>litera a </p>\n<p>-</p>");
}

TEST(typesetting, the_head_and_all_tags_stay_as_they_are) {
  const char* page =
      "<html><head><title>w domu -ons</title></head><body title=\"w domu -ons\"></body></html>";
  EXPECT_EQ(typeset(page), page);
}

TEST(typesetting, a_page_in_another_encoding_is_refused) {
  EXPECT_THROW(static_cast<void>(typeset("caf\xE9")), std::runtime_error);
  EXPECT_THROW(static_cast<void>(typeset("<p")), std::runtime_error);
}

// What is bound is bound once: setting a page that is set changes nothing more.
TEST(typesetting, a_set_page_stays_as_it_is) {
  for (const help::HelpPage& page : help::allPages()) {
    const std::string set = typeset(page.markup);
    EXPECT_NE(set, page.markup) << page.name;
    EXPECT_EQ(typeset(set), set) << page.name;
  }
}

}  // namespace
}  // namespace odmiennik::tools
