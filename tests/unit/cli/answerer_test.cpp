// SPDX-License-Identifier: GPL-3.0-or-later
// Every question is answered as by a program just started.
#include "cli/answerer.h"

#include <gtest/gtest.h>

#include "asking.h"

namespace odmiennik::cli {
namespace {

using engine::KnownAuxiliary;
using engine::Use;

constexpr AnswerOptions kEditing{.isEditing = true};
constexpr AnswerOptions kWithEtre{.auxiliary = engine::kEtre};
constexpr AnswerOptions kWithAvoir{.auxiliary = engine::kAvoir};

using Texts = std::vector<Utf8Text>;

const char* const kNotConjugable =
    "Podany czasownik nie został znaleziony i nie było możliwe odmienienie go regularnie.";
const char* const kConjugatedRegularly =
    "Podany czasownik nie został znaleziony, ale został odmieniony regularnie.";

TEST(answerer, blanks_and_capitals_around_a_pronominal_verb_do_not_matter) {
  Asking asking;
  const formats::Answer answer = asking.answer("  Se Laver  ");
  EXPECT_TRUE(answer.isPronominal);
  EXPECT_EQ(answer.typed, "  Se Laver  ");
  EXPECT_EQ(answer.conjugation.information.transitive, Use::no);
  EXPECT_EQ(answer.conjugation.information.auxiliary, KnownAuxiliary::etre);
  EXPECT_EQ(answer.conjugation.shown.boxes[0], "me lave");
}

TEST(answerer, an_unknown_verb_is_conjugated_with_a_message) {
  Asking asking;
  EXPECT_EQ(asking.answer("blabler").messages, Texts{kConjugatedRegularly});
  EXPECT_FALSE(asking.answer("blabler").isRefused);
}

TEST(answerer, messages_belong_to_one_answer_only) {
  Asking asking;
  EXPECT_EQ(asking.answer("blabler").messages.size(), 1U);
  EXPECT_TRUE(asking.answer("parler").messages.empty());
}

TEST(answerer, a_verb_without_a_rule_is_refused_with_a_message) {
  Asking asking;
  const formats::Answer answer = asking.answer("x");
  EXPECT_TRUE(answer.isRefused);
  EXPECT_EQ(answer.messages, Texts{kNotConjugable});
}

TEST(answerer, the_empty_line_se_and_s_apostrophe_are_refused) {
  Asking asking;
  for (const char* line : {"", "   ", "se", "se ", "s'", "\t"})
    EXPECT_TRUE(asking.answer(line).isRefused) << line;
}

TEST(answerer, a_record_replaces_the_indexs_answer) {
  Asking asking;
  const formats::Answer answer = asking.answer("parler\t|1|2|1|1|1");
  EXPECT_TRUE(answer.conjugation.flags.isImpersonal);
  EXPECT_EQ(answer.conjugation.shown.boxes[2], "parle");
  EXPECT_EQ(answer.conjugation.shown.boxes[0], engine::kShownMissing);
}

TEST(answerer, an_empty_record_says_that_nothing_is_known) {
  Asking asking;
  const formats::Answer answer = asking.answer("parler\t");
  EXPECT_EQ(answer.messages, Texts{kConjugatedRegularly});
  EXPECT_EQ(answer.conjugation.information.group, engine::Group::unknown);
}

TEST(answerer, a_record_holds_for_its_own_line_only) {
  Asking asking;
  static_cast<void>(asking.answer("parler\t"));
  EXPECT_TRUE(asking.answer("parler").messages.empty());
}

TEST(answerer, nothing_of_the_verb_before_is_left) {
  Asking asking;
  // An unknown code changes nothing: what shows is the label of a program just started.
  static_cast<void>(asking.answer("se laver"));
  const formats::Answer answer = asking.answer("parler\t|9|9|9|9");
  EXPECT_EQ(answer.conjugation.information.transitive, Use::unknown);
  EXPECT_EQ(answer.conjugation.flags.auxiliary, engine::kAvoir);
  EXPECT_TRUE(answer.conjugation.information.isAuxiliaryFree);
}

TEST(answerer, a_line_with_a_fault_shows_the_empty_table) {
  Asking asking;
  static_cast<void>(asking.answer("se laver"));
  const formats::Answer answer = asking.answer("łapać");
  EXPECT_TRUE(answer.isRefused);
  EXPECT_TRUE(answer.messages.empty());
  EXPECT_EQ(answer.conjugation.source, engine::Source::none);
  EXPECT_EQ(answer.conjugation.information.auxiliary, KnownAuxiliary::unknown);
  EXPECT_FALSE(answer.isPronominal);
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    EXPECT_EQ(answer.conjugation.forms[slot], "");
    EXPECT_EQ(answer.conjugation.shown.boxes[static_cast<std::size_t>(slot)],
              engine::kShownMissing);
  }
}

TEST(answerer, resetuj_gives_its_message_and_displays_nothing) {
  Asking asking;
  static_cast<void>(asking.answer("se laver"));
  const formats::Answer answer = asking.answer(" Resetuj");
  EXPECT_TRUE(answer.isRefused);
  EXPECT_EQ(answer.messages, Texts{"Ustawienia zostaną zresetowane, a program zamknięty."});
  EXPECT_EQ(answer.conjugation.forms[engine::slot::kInfinitive], " Resetuj");
  EXPECT_EQ(answer.conjugation.forms[0], "");
  EXPECT_EQ(answer.conjugation.shown.boxes[0], "");
  EXPECT_EQ(answer.conjugation.shown.boxes[engine::slot::kInfinitive], " Resetuj");
  EXPECT_EQ(answer.conjugation.shown.pronouns[0], "je");
  EXPECT_EQ(answer.conjugation.shown.captions[0], "Il faut que ...");
}

TEST(answerer, the_auxiliary_is_switched_even_where_the_box_is_disabled) {
  Asking asking(kWithEtre);
  const formats::Answer answer = asking.answer("parler");
  EXPECT_FALSE(answer.conjugation.information.isAuxiliaryFree);
  EXPECT_EQ(answer.conjugation.flags.auxiliary, engine::kEtre);
  EXPECT_EQ(asking.box("parler", 24), "suis parlé(e)");
}

TEST(answerer, after_the_click_the_verb_is_not_pronominal_any_more) {
  Asking asking(kWithEtre);
  EXPECT_FALSE(asking.answer("se laver").isPronominal);
  EXPECT_EQ(asking.box("se laver", 24), "suis lavé(e)");
}

TEST(answerer, messages_of_a_clicked_verb_are_those_of_the_conjugation) {
  Asking asking(kWithAvoir);
  EXPECT_EQ(asking.answer("blabler").messages, Texts{kConjugatedRegularly});
}

TEST(answerer, while_editing_placeholders_stay_and_nothing_is_refused) {
  Asking asking(kEditing);
  EXPECT_EQ(asking.box("pouvoir", 24), "*");
  EXPECT_FALSE(asking.answer("x").isRefused);
  EXPECT_EQ(asking.box("x", 0), "");
}

TEST(answerer, while_editing_the_click_changes_the_flag_only) {
  Asking asking({.isEditing = true, .auxiliary = engine::kEtre});
  const formats::Answer answer = asking.answer("parler");
  EXPECT_EQ(answer.conjugation.flags.auxiliary, engine::kEtre);
  EXPECT_EQ(asking.box("parler", 24), "ai parlé");
}

}  // namespace
}  // namespace odmiennik::cli
