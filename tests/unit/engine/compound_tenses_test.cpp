// SPDX-License-Identifier: GPL-3.0-or-later
// The compound builder.
#include "engine/compound_tenses.h"

#include <gtest/gtest.h>

#include "engine/flags.h"
#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::french;

FormTable withParticiple(std::string_view participle) {
  FormTable forms;
  forms[slot::kPastParticiple] = french(participle);
  return forms;
}

FormTable built(std::string_view participle, std::uint8_t auxiliary) {
  FormTable forms = withParticiple(participle);
  buildCompoundTenses(forms, auxiliary, {});
  return forms;
}

struct Row {
  int slot;
  std::string_view text;
};

void expectForms(const FormTable& forms, std::initializer_list<Row> rows) {
  for (const Row& row : rows) EXPECT_EQ(testing::utf8(forms[row.slot]), row.text) << row.slot;
}

TEST(compound_tenses, parler_with_avoir) {
  expectForms(built("parlé", kAvoir), {{24, "ai parlé"},
                                       {27, "avons parlé"},
                                       {30, "avais parlé"},
                                       {36, "eus parlé"},
                                       {47, "auront parlé"},
                                       {60, "aie parlé"},
                                       {62, "ait parlé"},
                                       {66, "eusse parlé"},
                                       {68, "eût parlé"},
                                       {78, "aurais parlé"},
                                       {84, "eusse parlé"},
                                       {86, "eût parlé"},
                                       {89, "eussent parlé"},
                                       {93, "aie parlé"},
                                       {94, "ayons parlé"},
                                       {95, "ayez parlé"},
                                       {97, "avoir parlé"},
                                       {100, "ayant parlé"}});
}

TEST(compound_tenses, ils_aurainet_stands_in_slot_83_of_verbs_with_avoir) {
  expectForms(built("parlé", kAvoir), {{83, "aurainet parlé"}});
}

TEST(compound_tenses, aller_with_etre) {
  expectForms(built("allé", kEtre), {{24, "suis allé(e)"},
                                     {26, "est allé(e)"},
                                     {27, "sommes allé(e)s"},
                                     {28, "êtes allé(e)s"},
                                     {29, "sont allé(e)s"},
                                     {33, "étions allé(e)s"},
                                     {41, "furent allé(e)s"},
                                     {42, "serai allé(e)"},
                                     {65, "soient allé(e)s"},
                                     {83, "seraient allé(e)s"},
                                     {89, "fussent allé(e)s"},
                                     {97, "être allé(e)"},
                                     {100, "étant allé(e)"}});
}

TEST(compound_tenses, the_past_imperative_has_no_plural_s) {
  expectForms(built("allé", kEtre),
              {{93, "sois allé(e)"}, {94, "soyons allé(e)"}, {95, "soyez allé(e)"}});
}

TEST(compound_tenses, with_avoir_nobody_takes_an_s) {
  const FormTable forms = built("parlé", kAvoir);
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_FALSE(forms[slot].ends_with("s")) << slot << testing::utf8(forms[slot]);
}

TEST(compound_tenses, a_stored_marker_is_not_doubled_with_etre) {
  expectForms(built("allé(e)", kEtre), {{24, "suis allé(e)"}, {29, "sont allé(e)s"}});
}

TEST(compound_tenses, a_stored_marker_is_removed_with_avoir) {
  expectForms(built("allé(e)", kAvoir), {{24, "ai allé"}, {97, "avoir allé"}});
}

TEST(compound_tenses, only_the_first_variant_of_the_participle_is_used) {
  expectForms(built("béni/bénit", kAvoir), {{24, "ai béni"}});
  expectForms(built("dû, due", kAvoir), {{24, "ai dû"}});
  expectForms(built("sous; soute", kAvoir), {{24, "ai sous"}});
  expectForms(built("absous, absoute(e)", kEtre), {{24, "suis absous(e)"}});
}

TEST(compound_tenses, what_stands_before_the_separator_is_used_as_it_is) {
  expectForms(built("béni / bénit", kAvoir), {{24, "ai béni "}});
}

TEST(compound_tenses, without_a_participle_nothing_is_written) {
  for (const std::string_view participle : {"", "/béni", ",x", ";"}) {
    FormTable forms = withParticiple(participle);
    forms[24] = "kept";
    forms[25] = "*";
    buildCompoundTenses(forms, kAvoir, {});
    expectForms(forms, {{24, "kept"}, {25, "*"}, {30, ""}, {97, ""}});
  }
}

TEST(compound_tenses, in_placeholder_mode_only_placeholders_are_rewritten) {
  FormTable forms = withParticiple("parlé");
  forms[25] = "*";
  forms[26] = "own";
  forms[97] = "*";
  buildCompoundTenses(forms, kAvoir, {.placeholdersOnly = true});
  expectForms(forms, {{24, ""}, {25, "as parlé"}, {26, "own"}, {97, "avoir parlé"}, {100, ""}});
}

TEST(compound_tenses, a_placeholder_in_slot_24_means_placeholders_only) {
  FormTable forms = withParticiple("parlé");
  forms[24] = "*";
  forms[25] = "own";
  buildCompoundTenses(forms, kAvoir, {});
  expectForms(forms, {{24, "ai parlé"}, {25, "own"}, {26, ""}});
}

TEST(compound_tenses, on_screen_an_empty_slot_stays_empty) {
  FormTable forms = built("parlé", kAvoir);
  forms[25] = forms[93] = forms[100] = "";
  buildCompoundTenses(forms, kEtre, {.keepsEmptySlots = true});
  expectForms(forms,
              {{24, "suis parlé(e)"}, {25, ""}, {93, ""}, {94, "soyons parlé(e)"}, {100, ""}});
}

TEST(compound_tenses, while_being_built_an_empty_slot_is_filled) {
  EXPECT_EQ(testing::utf8(built("parlé", kAvoir)[25]), "as parlé");
}

TEST(compound_tenses, simple_slots_are_not_touched) {
  const FormTable forms = built("parlé", kAvoir);
  for (int slot = 0; slot < kSlotCount; ++slot) {
    const bool isCompound = (slot >= 24 && slot < 48) || (slot >= 60 && slot < 72) ||
                            (slot >= 78 && slot < 90) || (slot >= 93 && slot < 96) || slot == 97 ||
                            slot == 99 || slot == 100;
    EXPECT_EQ(!forms[slot].empty(), isCompound) << slot;
  }
}

TEST(compound_tenses, a_placeholder_is_noticed_in_every_compound_slot_and_nowhere_else) {
  const FormTable full = built("parlé", kAvoir);
  for (int slot = 0; slot < kSlotCount; ++slot) {
    FormTable forms;
    forms[slot] = "*";
    EXPECT_EQ(hasCompoundPlaceholder(forms), !full[slot].empty() && slot != 99) << slot;
  }
}

}  // namespace
}  // namespace odmiennik::engine
