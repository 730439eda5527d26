// SPDX-License-Identifier: GPL-3.0-or-later
// The forms that were written by hand.
#include <gtest/gtest.h>

#include <charconv>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

struct Expected {
  int slot;
  std::string form;
};

// "2 lit, 99 dû, due": a comma opens the next form where a number follows.
std::vector<Expected> formsOf(std::string_view text) {
  std::vector<Expected> forms;
  while (!text.empty()) {
    auto end = text.find(", ");
    while (end != std::string_view::npos && (text[end + 2] < '0' || text[end + 2] > '9'))
      end = text.find(", ", end + 1);
    const std::string_view entry = text.substr(0, end);
    Expected expected{};
    const auto number = std::from_chars(entry.data(), entry.data() + entry.size(), expected.slot);
    expected.form = entry.substr(static_cast<std::size_t>(number.ptr - entry.data()) + 1);
    forms.push_back(expected);
    text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 2);
  }
  return forms;
}

TEST(forms_of_the_norm, are_those_written_by_hand) {
  std::ifstream file(ODMIENNIK_SOURCE_DIR "/tests/norm/forms.txt");
  TestProgram program;
  program.followNorm();
  int count = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.front() == '#') continue;
    const auto colon = line.find(": ");
    ASSERT_NE(colon, std::string::npos) << line;
    const std::string verb = line.substr(0, colon);
    program.conjugate(verb);
    for (const Expected& expected : formsOf(std::string_view(line).substr(colon + 2))) {
      EXPECT_EQ(program.box(expected.slot), expected.form) << verb << ", slot " << expected.slot;
      ++count;
    }
  }
  EXPECT_GE(count, 200);
}

TEST(forms_of_the_norm, the_caption_above_falloir_is_spelt_as_today) {
  TestProgram program;
  program.followNorm();
  program.conjugate("falloir");
  EXPECT_EQ(program.caption(0), "Il ne croit pas que ...");
  EXPECT_EQ(program.caption(1), "Il ne croyait pas que ...");
}

TEST(forms_of_the_norm, the_pronoun_je_elides_before_oe_and_stays_before_a_spoken_y) {
  TestProgram program;
  program.followNorm();
  program.conjugate("œuvrer");
  EXPECT_EQ(program.pronoun(0), "j'");
  program.conjugate("yodler");
  EXPECT_EQ(program.pronoun(0), "je");
  program.conjugate("ypérisser");
  EXPECT_EQ(program.pronoun(0), "j'") << "before a consonant y is a vowel";
  program.conjugate("iodler");
  EXPECT_EQ(program.pronoun(0), "je");
  EXPECT_EQ(program.pronoun(24), "j'") << "j'ai iodlé";
  program.conjugate("ioder");
  EXPECT_EQ(program.pronoun(0), "j'");
}

TEST(forms_of_the_norm, the_own_verb_wins) {
  TestProgram program;
  program.followNorm();
  program.addUserVerb({.slots = {{2, "lir"}, {96, "lire"}}});
  program.conjugate("lire");
  EXPECT_EQ(program.box(2), "lir");
}

TEST(forms_of_the_norm, an_own_verb_with_an_adverb_is_shown_as_it_is_stored) {
  TestProgram program;
  program.followNorm();
  program.addUserVerb({.slots = {{0, "m'en vais"}, {96, "s'en aller"}}, .auxiliary = 0});
  program.conjugate("s'en aller");
  EXPECT_EQ(program.box(0), "m'en vais");
}

TEST(forms_of_the_norm, the_other_auxiliary_keeps_the_norm) {
  TestProgram program;
  program.followNorm();
  program.conjugate("monter");
  EXPECT_EQ(program.box(29), "sont monté(e)s");
  program.chooseAuxiliary(engine::kAvoir);
  EXPECT_EQ(program.box(83), "auraient monté");
}

TEST(forms_of_the_norm, while_a_verb_is_edited_the_forms_are_the_systems) {
  TestProgram program;
  program.followNorm();
  program.edit("lire");
  EXPECT_EQ(program.box(2), "lir");
}

TEST(forms_of_the_norm, a_verb_after_another_begins_anew) {
  TestProgram program;
  program.followNorm();
  program.conjugate("s'en aller");
  program.conjugate("se laver");
  EXPECT_EQ(program.box(0), "me lave");
  program.conjugate("se parler");
  program.conjugate("se laver");
  EXPECT_EQ(program.box(24), "me suis lavé(e)");
}

}  // namespace
}  // namespace odmiennik::testing
