// SPDX-License-Identifier: GPL-3.0-or-later
// The table that a person reads.
#include <gtest/gtest.h>

#include "dictionary/verb_index.h"
#include "formats/page.h"
#include "formats/text_layout.h"
#include "tests/unit/cli/asking.h"

namespace odmiennik::formats {
namespace {

Utf8Text textOf(Utf8View line, bool isColoured = false) {
  cli::Asking asking;
  return asking.textOf(*makeTextFormat(isColoured), line);
}

bool holds(const Utf8Text& text, Utf8View part) { return text.find(part) != std::string::npos; }

std::size_t widestLine(Utf8View text) {
  std::size_t widest = 0;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = text.find('\n', start);
    widest = std::max(widest, letterCount(text.substr(start, end - start)));
    start = end + 1;
  }
  return widest;
}

// The form as the table shows it, with its pronoun.
Utf8Text shownForm(const Cell& cell) {
  return engine::toUtf8(cell.pronoun) + (cell.hasBlank() ? " " : "") + engine::toUtf8(cell.form);
}

void expectEveryForm(const Utf8Text& text, const engine::Display& shown) {
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const Cell cell = cellOf(shown, slot);
    if (!cell.isMissing()) {
      EXPECT_TRUE(holds(text, shownForm(cell))) << shownForm(cell);
    }
  }
}

TEST(text_format, every_verb_of_the_index_fits_the_page_with_all_its_forms) {
  cli::Asking asking;
  for (int i = 0; i < dictionary::verbCount(); ++i) {
    const Utf8Text verb = engine::toUtf8(dictionary::verbAt(i));
    const Utf8Text text = asking.textOf(*makeTextFormat(false), verb);
    ASSERT_LE(widestLine(text), kPageWidth) << verb;
    const Answer answer = asking.answer(verb);
    ASSERT_EQ(text.empty(), answer.isRefused) << verb;
    if (!answer.isRefused) expectEveryForm(text, answer.conjugation.shown);
    if (HasFailure()) FAIL() << verb;
  }
}

TEST(text_format, every_reflexive_verb_fits_the_page_too) {
  cli::Asking asking;
  for (int i = 0; i < dictionary::verbCount(); ++i) {
    const Utf8Text verb = "se " + engine::toUtf8(dictionary::verbAt(i));
    ASSERT_LE(widestLine(asking.textOf(*makeTextFormat(false), verb)), kPageWidth) << verb;
  }
}

TEST(text_format, pronouns_are_joined_to_their_forms) {
  const Utf8Text text = textOf("parler");
  EXPECT_TRUE(holds(text, "\nje parle "));
  EXPECT_TRUE(holds(text, "\nj'ai parlé "));
  EXPECT_TRUE(holds(text, "\nns avons parlé "));
}

TEST(text_format, a_compound_tense_stands_under_its_simple_tense) {
  const Utf8Text text = textOf("parler");
  EXPECT_TRUE(
      holds(text, "\nPrésent                    Imparfait                  Passé simple\n"));
  EXPECT_TRUE(
      holds(text, "\nPassé composé              Plus-que-parfait           Passé antérieur\n"));
}

TEST(text_format, information_stands_above) {
  const Utf8Text text = textOf("parler");
  EXPECT_TRUE(holds(text, "\ngrupa: pierwsza            przechodni: tak "));
  EXPECT_TRUE(
      holds(text, "\nposiłkowy: avoir           rząd: b.d.                 źródło: reguła"));
}

TEST(text_format, double_forms_take_fewer_columns_instead_of_being_cut) {
  EXPECT_TRUE(
      holds(textOf("asseoir"), "\nPrésent                                  Passé composé\n"));
  EXPECT_TRUE(holds(textOf("asseoir"), "\nils assoiraient/assiéraient "));
}

TEST(text_format, a_form_wider_than_the_page_is_shown_whole) {
  const Utf8Text verb(10000, 'a');
  EXPECT_TRUE(holds(textOf(verb + "er"), "\nvs eussiez " + verb + "é\n"));
}

TEST(text_format, persons_that_do_not_exist_are_left_out) {
  const Utf8Text text = textOf("falloir");
  EXPECT_TRUE(holds(text, "\nil faut                    il fallait                 il fallut\n"));
  EXPECT_FALSE(holds(text, "\nje "));
  EXPECT_TRUE(holds(text, "\nIl ne crois pas que ...    Il ne croyais pas que ...\n"));
}

TEST(text_format, a_tense_that_does_not_exist_shows_two_dashes) {
  EXPECT_TRUE(holds(textOf("falloir"),
                    "\nPrésent                    Passé\n--                         --\n"));
}

TEST(text_format, a_switched_auxiliary_is_named) {
  cli::Asking asking({.auxiliary = engine::kEtre});
  EXPECT_TRUE(holds(asking.textOf(*makeTextFormat(false), "parler"), "\nzłożone z: être "));
}

TEST(text_format, verbs_are_separated_by_blank_lines) {
  cli::Asking asking;
  const auto format = makeTextFormat(false);
  EXPECT_TRUE(asking.textOf(*format, "parler").starts_with("══ parler ═"));
  EXPECT_TRUE(asking.textOf(*format, "aimer").starts_with("\n\n══ aimer ═"));
}

TEST(text_format, a_refused_verb_has_no_table) { EXPECT_EQ(textOf("x"), ""); }

TEST(text_format, no_line_ends_in_blanks) { EXPECT_FALSE(holds(textOf("falloir"), " \n")); }

TEST(text_format, colours_change_nothing_but_the_colours) {
  EXPECT_FALSE(holds(textOf("parler"), "\x1b"));
  Utf8Text coloured = textOf("parler", true);
  ASSERT_TRUE(holds(coloured, "\x1b[1;34m"));
  for (std::size_t at; (at = coloured.find('\x1b')) != std::string::npos;)
    coloured.erase(at, coloured.find('m', at) - at + 1);
  EXPECT_EQ(coloured, textOf("parler"));
}

TEST(text_format, control_characters_never_reach_the_terminal) {
  const Utf8Text text = textOf("\x1b[31mparler");
  EXPECT_FALSE(holds(text, "\x1b"));
  EXPECT_TRUE(holds(text, "══ \\x1B[31mparler ═"));
}

}  // namespace
}  // namespace odmiennik::formats
