// SPDX-License-Identifier: GPL-3.0-or-later
// Formats that print some of the forms.
#include "formats/slot_choice.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "cli/slot_names.h"
#include "tests/unit/cli/asking.h"

namespace odmiennik::formats {
namespace {

// What a format prints of a verb in these tenses and persons.
Utf8Text printedOf(std::unique_ptr<Format> format, Utf8View verb,
                   std::initializer_list<Utf8View> tenses,
                   std::initializer_list<Utf8View> persons = {}) {
  cli::Tenses chosenTenses;
  cli::Persons chosenPersons;
  for (const Utf8View name : tenses) EXPECT_TRUE(cli::addTense(chosenTenses, name)) << name;
  for (const Utf8View name : persons) EXPECT_TRUE(cli::addPerson(chosenPersons, name)) << name;
  cli::Asking asking({.slots = cli::slotsOf(chosenTenses, chosenPersons)});
  return asking.textOf(*format, verb);
}

bool mentions(const Utf8Text& text, Utf8View part) { return text.find(part) != Utf8Text::npos; }

TEST(slot_choice, tsv_and_csv_have_their_lines_alone) {
  EXPECT_EQ(printedOf(makeTsvFormat(), "parler", {"imparfait"}, {"nous", "vous"}),
            "parler\t9\tIndicatif\timparfait\tnous\tns\tparlions\tnous parlions\n"
            "parler\t10\tIndicatif\timparfait\tvous\tvs\tparliez\tvous parliez\n");
  EXPECT_EQ(printedOf(makeCsvFormat(), "parler", {"participe présent"}),
            "parler,98,Participe,présent,,,parlant,parlant\r\n");
}

TEST(slot_choice, there_are_cards_of_its_forms_alone) {
  EXPECT_EQ(printedOf(makeAnkiFormat(), "parler", {"subjonctif présent"}, {"il"}),
            "parler, subjonctif présent, il\tqu'il parle\todmiennik::Subjonctif::présent "
            "odmiennik::grupa::pierwsza\n");
}

TEST(slot_choice, a_page_has_tables_of_its_tenses_and_rows_of_its_persons) {
  const Utf8Text page =
      printedOf(makeMarkdownFormat(), "parler", {"présent", "passé simple", "impératif"}, {"tu"});
  EXPECT_TRUE(
      page.ends_with("\n## Indicatif\n\n| présent | passé simple |\n|---|---|\n"
                     "| tu parles | tu parlas |\n"
                     "\n## Impératif\n\n| présent | passé |\n|---|---|\n"
                     "| parle | aie parlé |\n"))
      << page;
  const Utf8Text html = printedOf(makeHtmlFormat(), "parler", {"imparfait"}, {"tu"});
  EXPECT_TRUE(
      mentions(html, "<th scope=\"col\">imparfait</th></tr>\n<tr><td>tu parlais</td></tr>"));
  EXPECT_FALSE(mentions(html, "Subjonctif"));
}

TEST(slot_choice, the_table_has_its_tenses_and_persons) {
  const Utf8Text text = printedOf(makeTextFormat(), "parler", {"présent", "subjonctif"}, {"nous"});
  EXPECT_TRUE(mentions(text, "Présent\nns parlons\n")) << text;
  EXPECT_TRUE(mentions(text, "ns parlions "));
  EXPECT_FALSE(mentions(text, "je ") || mentions(text, "Imparfait\nns") ||
               mentions(text, "Participe"));
}

TEST(slot_choice, a_tense_of_it_that_does_not_exist_shows_two_dashes_still) {
  EXPECT_TRUE(
      mentions(printedOf(makeTextFormat(), "falloir", {"impératif présent"}), "Présent\n--\n"));
}

TEST(slot_choice, in_json_every_slot_keeps_its_place) {
  const Utf8Text all = printedOf(makeJsonFormat(), "parler", {});
  const Utf8Text json = printedOf(makeJsonFormat(), "parler", {"présent"}, {"tu"});
  EXPECT_TRUE(mentions(json, "\"slots\":[\"\",\"parles\",\"\","));
  EXPECT_TRUE(mentions(json, "\"boxes\":[\"\",\"parles\",\"\","));
  const auto commasOf = [](const Utf8Text& text) { return std::ranges::count(text, ','); };
  EXPECT_EQ(commasOf(json), commasOf(all));
  EXPECT_FALSE(mentions(json, "parlons"));
}

}  // namespace
}  // namespace odmiennik::formats
