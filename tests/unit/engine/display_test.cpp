// SPDX-License-Identifier: GPL-3.0-or-later
// The display step: boxes of a form table.
#include "engine/display.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

struct Screen {
  FormTable forms;
  EngineFlags flags;
  Display shown;

  void show(bool isEditing = false) { display(forms, flags, isEditing, shown); }
  [[nodiscard]] std::string_view box(int slot) const {
    return shown.boxes[static_cast<std::size_t>(slot)];
  }
};

TEST(display, every_box_shows_its_slot) {
  Screen screen;
  for (int slot = 0; slot < kSlotCount; ++slot) screen.forms[slot] = "x" + std::to_string(slot);
  screen.show();
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_EQ(screen.box(slot), "x" + std::to_string(slot));
}

TEST(display, an_empty_slot_shows_two_hyphens_between_blanks) {
  Screen screen;
  screen.show();
  for (int slot = 0; slot < kSlotCount; ++slot) EXPECT_EQ(screen.box(slot), " -- ") << slot;
}

TEST(display, while_editing_an_empty_slot_shows_nothing) {
  Screen screen;
  screen.show(true);
  for (int slot = 0; slot < kSlotCount; ++slot) EXPECT_EQ(screen.box(slot), "") << slot;
}

TEST(display, a_placeholder_is_shown_as_it_stands) {
  Screen screen;
  screen.forms[24] = "*";
  screen.show();
  EXPECT_EQ(screen.box(24), "*");
}

TEST(display, an_impersonal_verb_keeps_il_forms_infinitives_and_the_two_participles) {
  Screen screen;
  for (int slot = 0; slot < kSlotCount; ++slot) screen.forms[slot] = "x";
  screen.flags.isImpersonal = true;
  screen.show();
  std::set<int> kept{96, 97, 98, 99};
  for (int slot = 2; slot < 89; slot += 6) kept.insert(slot);
  ASSERT_EQ(kept.size(), 15U + 4U);
  for (int slot = 0; slot < kSlotCount; ++slot) {
    EXPECT_EQ(screen.box(slot), kept.contains(slot) ? "x" : " -- ") << slot;
    EXPECT_EQ(screen.forms[slot], kept.contains(slot) ? "x" : "") << slot;
  }
}

TEST(display, an_impersonal_verb_loses_slot_100_and_the_vous_of_the_imperative) {
  Screen screen;
  screen.forms[92] = screen.forms[100] = "x";
  screen.flags.isImpersonal = true;
  screen.show();
  EXPECT_EQ(screen.forms[92], "");
  EXPECT_EQ(screen.forms[100], "");
}

TEST(display, takes_a_reflexive_prefix_off_unless_the_verb_is_pronominal) {
  Screen screen;
  screen.forms[2] = "se lave";
  screen.forms[96] = "s'asseoir";
  screen.forms[99] = "se x";
  screen.show();
  EXPECT_EQ(screen.box(2), "lave");
  EXPECT_EQ(screen.box(96), "asseoir");
  EXPECT_EQ(screen.box(99), "x");
  EXPECT_EQ(screen.forms[2], "se lave") << "the table keeps it";
  screen.flags.isPronominal = true;
  screen.show();
  EXPECT_EQ(screen.box(2), "se lave");
  EXPECT_EQ(screen.box(96), "s'asseoir");
}

TEST(display, takes_a_slots_own_reflexive_pronoun_off) {
  Screen screen;
  screen.forms[0] = "me lave";
  screen.forms[3] = "nous lavons";
  screen.forms[90] = "lave-toi";
  screen.show();
  EXPECT_EQ(screen.box(0), "lave");
  EXPECT_EQ(screen.box(3), "lavons");
  EXPECT_EQ(screen.box(90), "lave");
}

TEST(display, takes_every_persons_own_pronoun_off_short_and_long_forms) {
  const std::string_view kPronouns[] = {"me ", "te ", "se ", "nous ", "vous ", "se "};
  const std::string_view kElided[] = {"m'", "t'", "s'", "nous ", "vous ", "s'"};
  for (const std::string_view form : {"a", "es", "est", "lave", "suis lav\xE9(e)"})
    for (int slot = 0; slot < kPersonalSlotCount; ++slot)
      for (const auto* pronouns : {kPronouns, kElided}) {
        Screen screen;
        screen.forms[slot] = std::string(pronouns[slot % 6]) + std::string(form);
        screen.show();
        EXPECT_EQ(screen.box(slot), form) << slot;
      }
}

TEST(display, leaves_forms_that_only_look_as_if_they_had_a_pronoun) {
  for (const std::string_view form : {"mens", "m", "me", "tes", "sens x", "nous", "vouas x", "s",
                                      "n'a", "v'a", "ne va", "ve va", "nouas x"})
    for (int slot = 0; slot < kPersonalSlotCount; ++slot) {
      Screen screen;
      screen.forms[slot] = form;
      screen.show();
      EXPECT_EQ(screen.box(slot), form) << slot;
    }
}

TEST(display, chooses_je_by_the_slot_not_by_the_box) {
  Screen screen;
  screen.forms[0] = "m'amuse";
  screen.show();
  EXPECT_EQ(screen.box(0), "amuse");
  EXPECT_EQ(screen.shown.pronouns[0], "je");
}

TEST(display, a_pronoun_is_chosen_for_an_empty_slot_too) {
  Screen screen;
  screen.show();
  EXPECT_EQ(screen.shown.pronouns[0], "je");
  EXPECT_EQ(screen.shown.pronouns[89], "ils");
}

}  // namespace
}  // namespace odmiennik::engine
