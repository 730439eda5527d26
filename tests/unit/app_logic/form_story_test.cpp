// SPDX-License-Identifier: GPL-3.0-or-later
// What the window tells of the form in a box.
#include "app/logic/form_story.h"

#include <gtest/gtest.h>

#include "tests/support/test_program.h"

namespace odmiennik::app {
namespace {

using StoryLines = std::vector<std::string>;

class form_story : public ::testing::Test {
 protected:
  struct NoVerbs final : engine::UserVerbs {
    bool load(std::string_view, engine::FormTable&, std::uint8_t&) override { return false; }
  };

  StoryLines told(int slot, const std::string& text, bool isEditing = false) {
    StoryLines lines;
    const std::string french = testing::french(text);
    for (const Utf8Text& line : storyOf(explainer_, {slot, french, program_.state(), isEditing}))
      lines.emplace_back(bytesOf(line));
    return lines;
  }

  odmiennik::testing::TestProgram program_;
  NoVerbs noVerbs_;
  explainer::Explainer explainer_{noVerbs_};
};

TEST_F(form_story, tells_the_form_its_source_and_what_it_is_made_of) {
  program_.conjugate("manger");
  EXPECT_EQ(told(3, "mangeons"), (StoryLines{"nous mangeons", "reguła -ger (wzór: manger)",
                                             "temat mang-, e przed o, końcówka -ons"}));
}

TEST_F(form_story, tells_what_the_norm_has_instead) {
  program_.conjugate("avoir");
  EXPECT_EQ(
      told(77, "aurainet").back(),
      "dzisiejsza norma: ils auraient: poprawka normy w tym czasowniku; forma podana w całości "
      "w regule");
}

TEST_F(form_story, follows_the_auxiliary_that_the_user_has_chosen) {
  program_.conjugate("tomber");
  program_.chooseAuxiliary(engine::kEtre);
  EXPECT_EQ(told(24, "suis tombé(e)").front(), "je suis tombé(e)");
}

TEST_F(form_story, says_of_what_somebody_has_typed_that_it_is_typed) {
  program_.edit("parler");
  EXPECT_EQ(told(0, "parrle", true),
            StoryLines{"forma wpisana przez użytkownika, program jej nie utworzył"});
  EXPECT_EQ(told(0, "*", true), StoryLines{"gwiazdka: po zapisaniu formę utworzy program"});
  EXPECT_EQ(told(0, "", true), StoryLines{"forma usunięta przez użytkownika"});
}

TEST_F(form_story, tells_a_form_that_was_not_touched_while_editing) {
  program_.edit("parler");
  EXPECT_EQ(told(0, "parle", true).front(), "je parle");
}

TEST_F(form_story, says_why_there_is_no_form) {
  program_.conjugate("neiger");
  EXPECT_EQ(told(0, " -- ").back(), "czasownik nieosobowy ma tylko formy z il");
}

TEST_F(form_story, says_of_a_refused_word_that_it_is_no_verb) {
  program_.conjugate("xyz");
  EXPECT_EQ(told(0, " -- "), StoryLines{"nie ma takiego czasownika"});
}

TEST_F(form_story, asks_for_a_verb_before_the_first_one) {
  EXPECT_EQ(told(0, ""), StoryLines{"najpierw odmień czasownik"});
}

}  // namespace
}  // namespace odmiennik::app
