// SPDX-License-Identifier: GPL-3.0-or-later
// What is said of verbs of every kind, word for word.
#include <gtest/gtest.h>

#include <map>

#include "explainer/explainer.h"
#include "explainer/form_names.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

using engine::Variety;

// One verb of the user's own: its slots by number.
struct OneVerb final : engine::UserVerbs {
  std::map<int, std::string> slots;

  bool load(std::string_view infinitive, engine::FormTable& forms, std::uint8_t& aux) override {
    if (slots.empty() || infinitive != slots[engine::slot::kInfinitive]) return false;
    forms.clear();
    for (const auto& [slot, form] : slots) forms[slot] = form;
    aux = engine::kAvoir;
    return true;
  }
};

std::string told(OneVerb& own, const std::string& infinitive, int slot,
                 Variety variety = Variety::system) {
  explainer::Explainer explainer(own);
  explainer.take({.infinitive = french(infinitive), .variety = variety});
  const explainer::Explanation explanation = explainer.explainComposition(slot);
  return std::string(bytesOf(explainer::sentenceOf(explanation.remarks)));
}

std::string told(const std::string& infinitive, int slot, Variety variety = Variety::system) {
  OneVerb none;
  return told(none, infinitive, slot, variety);
}

TEST(phrases, tell_changes_of_spelling) {
  EXPECT_EQ(told("manger", 3), "temat mang-, e przed o, końcówka -ons");
  EXPECT_EQ(told("placer", 3), "temat plac-, ç zamiast c przed o, końcówka -ons");
  EXPECT_EQ(told("lever", 0), "temat lev-, è zamiast e przed niemą końcówką, końcówka -e");
  EXPECT_EQ(told("appeler", 5), "temat appel-, podwójne l przed niemą końcówką, końcówka -ent");
}

TEST(phrases, tell_that_a_verb_stands_in_its_rules_list) {
  EXPECT_TRUE(told("acheter", 0).starts_with("czasownik z listy tej reguły; temat achet-"));
}

TEST(phrases, tell_each_of_two_forms_for_itself) {
  EXPECT_EQ(told("payer", 0),
            "„paye”: temat pay-, końcówka -e; „paie”: temat pay-, i zamiast y przed niemą "
            "końcówką, końcówka -e");
}

TEST(phrases, tell_what_elides_and_what_does_not) {
  EXPECT_TRUE(told("habiter", 0).ends_with("j' zamiast je przed niemym h"));
  EXPECT_TRUE(told("haïr", 0).ends_with("je w całości przed h przydechowym"));
  EXPECT_TRUE(
      told("iodler", 0, Variety::norm).ends_with("je w całości, bo i brzmi tu jak spółgłoska"));
}

TEST(phrases, tell_the_adverb_of_a_reflexive_verb) {
  EXPECT_TRUE(told("s'en aller", 0, Variety::norm)
                  .ends_with("zaimek zwrotny m'en, en należy do czasownika"));
}

TEST(phrases, tell_the_feminine_that_is_no_mere_e) {
  EXPECT_EQ(told("se dissoudre", 99, Variety::norm),
            "z être obok formy żeńskiej: dissous, dissoute");
}

TEST(phrases, tell_why_there_is_no_form) {
  EXPECT_EQ(told("neiger", 0), "czasownik nieosobowy ma tylko formy z il");
  EXPECT_EQ(told("se laver", 93), "czasownik zwrotny nie ma tu trybu rozkazującego przeszłego");
  EXPECT_EQ(told("pouvoir", 90), "gramatyki nie znają tej formy: czasownik jest ułomny");
  EXPECT_EQ(told("résulter", 0, Variety::norm), "dzisiejsza norma zna tylko formy z il i ils");
}

TEST(phrases, tell_the_users_own_forms_from_those_made_for_him) {
  OneVerb own;
  own.slots = {{0, "me fofe"}, {3, "fofons"}, {6, "*"}, {96, "fofer"}};
  EXPECT_EQ(told(own, "fofer", 3), "forma zapisana w całości");
  EXPECT_EQ(told(own, "fofer", 0),
            "forma zapisana w całości; zapisany w formie zaimek zwrotny nie jest pokazywany");
  EXPECT_EQ(told(own, "fofer", 6), "od formy „nous fofons” (présent) bez -ons, końcówka -ais");
  EXPECT_EQ(told(own, "fofer", 1), "w pliku użytkownika to pole jest puste");
}

TEST(phrases, say_of_a_star_that_there_is_nothing_to_make_it_from) {
  OneVerb own;
  own.slots = {{18, ""}, {72, "*"}, {96, "fofer"}};
  EXPECT_EQ(told(own, "fofer", 72), "gwiazdka znaczy „utwórz według reguły”, ale nie ma z czego");
}

TEST(phrases, know_no_verb_where_there_is_none) {
  OneVerb none;
  explainer::Explainer explainer(none);
  EXPECT_FALSE(explainer.take({.infinitive = "xyz"}));
  EXPECT_EQ(bytesOf(explainer::sentenceOf(explainer.source())), "nie ma takiego czasownika");
}

// A model without a row would leave an explanation without its source.
TEST(models, have_a_verb_that_they_conjugate) {
  for (const explainer::ModelVerb& row : explainer::kModelVerbs) {
    if (row.model.starts_with("norm ") || row.model == "conditional") continue;
    TestProgram program;
    program.forgetBuiltinVerbs();
    program.conjugate(bytesOf(row.verb));
    EXPECT_EQ(program.state().model, row.model) << bytesOf(row.verb);
  }
}

}  // namespace
}  // namespace odmiennik::testing
