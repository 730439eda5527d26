// SPDX-License-Identifier: GPL-3.0-or-later
// The formats that leave the program: for spreadsheets, pages and cards.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/unit/cli/asking.h"

namespace odmiennik::formats {
namespace {

// Everything that is printed for the verbs.
Utf8Text printed(std::unique_ptr<Format> format, std::initializer_list<Utf8View> verbs) {
  cli::Asking asking;
  Utf8Text out;
  format->begin(out);
  for (const Utf8View verb : verbs) out.append(asking.textOf(*format, verb));
  format->end(out);
  return out;
}

bool has(const Utf8Text& text, Utf8View part) { return text.find(part) != Utf8Text::npos; }

std::ptrdiff_t count(const Utf8Text& text, Utf8View part) {
  std::ptrdiff_t found = 0;
  for (auto at = text.find(part); at != Utf8Text::npos; at = text.find(part, at + 1)) ++found;
  return found;
}

TEST(csv_format, has_a_header_and_a_line_a_slot_each_ended_by_cr_lf) {
  const Utf8Text csv = printed(makeCsvFormat(), {"aimer", "finir"});
  EXPECT_TRUE(csv.starts_with("infinitive,slot,mood,tense,person,pronoun,form,phrase\r\n"));
  EXPECT_EQ(count(csv, "\r\n"), 1 + 2 * 101);
  EXPECT_EQ(count(csv, "\n"), count(csv, "\r\n"));
  EXPECT_TRUE(has(csv, "\naimer,24,Indicatif,passé composé,je,j',ai aimé,j'ai aimé\r\n"));
}

TEST(csv_format, a_comma_or_a_quotation_mark_is_quoted) {
  const Utf8Text csv = printed(makeCsvFormat(), {"a\"b,cer"});
  EXPECT_TRUE(
      has(csv, "\n\"a\"\"b,cer\",0,Indicatif,présent,je,j',\"a\"\"b,ce\",\"j'a\"\"b,ce\"\r\n"));
}

TEST(csv_format, what_does_not_exist_is_empty) {
  EXPECT_TRUE(
      has(printed(makeCsvFormat(), {"falloir"}), "\nfalloir,0,Indicatif,présent,je,je,,\r\n"));
}

TEST(csv_format, a_refused_verb_has_no_lines) {
  EXPECT_EQ(count(printed(makeCsvFormat(), {"x"}), "\n"), 1);
}

TEST(markdown_format, has_a_heading_a_mood_and_tables_of_phrases) {
  const Utf8Text text = printed(makeMarkdownFormat(), {"parler"});
  EXPECT_TRUE(text.starts_with("# parler\n\n- grupa: pierwsza\n"));
  for (const Utf8View mood :
       {"Indicatif", "Subjonctif", "Conditionnel", "Impératif", "Infinitif", "Participe"})
    EXPECT_EQ(count(text, "\n## " + Utf8Text(mood) + "\n"), 1) << mood;
  EXPECT_TRUE(has(text,
                  "\n| présent | imparfait | passé simple |\n|---|---|---|\n"
                  "| je parle | je parlais | je parlai |\n"));
}

TEST(markdown_format, persons_that_do_not_exist_are_left_out) {
  const Utf8Text text = printed(makeMarkdownFormat(), {"falloir"});
  EXPECT_TRUE(has(text, "|---|---|---|\n| il faut | il fallait | il fallut |\n\n"));
}

TEST(markdown_format, its_own_signs_are_escaped_in_a_verb) {
  EXPECT_TRUE(has(printed(makeMarkdownFormat(), {"a|b*er"}), "# a\\|b\\*er\n"));
}

TEST(html_format, is_one_page_of_all_verbs_without_script) {
  const Utf8Text page = printed(makeHtmlFormat(), {"parler", "finir"});
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>\n<html lang=\"pl\">"));
  EXPECT_TRUE(page.ends_with("</body>\n</html>\n"));
  EXPECT_EQ(count(page, "<section>"), 2);
  EXPECT_EQ(count(page, "<script"), 0);
  EXPECT_EQ(count(page, "http"), 0);
  EXPECT_TRUE(has(page, "<tr><td>je parle</td><td>je parlais</td><td>je parlai</td></tr>\n"));
}

TEST(html_format, a_verb_cannot_become_markup) {
  const Utf8Text page = printed(makeHtmlFormat(), {"<b>&er"});
  EXPECT_TRUE(has(page, "<h1 lang=\"fr\">&lt;b&gt;&amp;er</h1>"));
  EXPECT_EQ(count(page, "<b>"), 0);
}

TEST(html_format, is_a_page_without_verbs_too) {
  EXPECT_TRUE(printed(makeHtmlFormat(), {"x"}).ends_with("<body>\n</body>\n</html>\n"));
}

TEST(anki_format, begins_with_the_lines_that_the_import_goes_by) {
  EXPECT_TRUE(printed(makeAnkiFormat(), {}) ==
              "#separator:tab\n#html:false\n#columns:Front\tBack\tTags\n#tags column:3\n");
}

TEST(anki_format, a_card_asks_for_a_form_and_names_its_mood_but_for_the_indicative) {
  const Utf8Text cards = printed(makeAnkiFormat(), {"manger"});
  EXPECT_TRUE(has(cards,
                  "\nmanger, imparfait, nous\tnous mangions\t"
                  "odmiennik::Indicatif::imparfait odmiennik::grupa::pierwsza\n"));
  EXPECT_TRUE(has(cards, "\nmanger, subjonctif imparfait, nous\tque nous mangeassions\t"));
  EXPECT_TRUE(has(cards, "\nmanger, participe présent\tmangeant\t"));
}

TEST(anki_format, a_tag_holds_no_blank) {
  EXPECT_TRUE(
      has(printed(makeAnkiFormat(), {"manger"}), "\todmiennik::Indicatif::passé-composé odm"));
}

TEST(anki_format, there_is_no_card_for_the_infinitive_nor_for_what_does_not_exist) {
  EXPECT_EQ(count(printed(makeAnkiFormat(), {"manger"}), "\n"), 4 + 100);
  EXPECT_FALSE(has(printed(makeAnkiFormat(), {"falloir"}), "\t\t"));
}

}  // namespace
}  // namespace odmiennik::formats
