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
  for (const Row& row : rows) EXPECT_EQ(toUtf8(forms[row.slot]), row.text) << row.slot;
}

TEST(CompoundTenses, ParlerWithAvoir) {
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

TEST(CompoundTenses, IlsAurainetStandsInSlot83OfVerbsWithAvoir) {
  expectForms(built("parlé", kAvoir), {{83, "aurainet parlé"}});
}

TEST(CompoundTenses, AllerWithEtre) {
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

TEST(CompoundTenses, ThePastImperativeHasNoPluralS) {
  expectForms(built("allé", kEtre),
              {{93, "sois allé(e)"}, {94, "soyons allé(e)"}, {95, "soyez allé(e)"}});
}

TEST(CompoundTenses, WithAvoirNobodyTakesAnS) {
  const FormTable forms = built("parlé", kAvoir);
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_FALSE(forms[slot].ends_with("s")) << slot << toUtf8(forms[slot]);
}

TEST(CompoundTenses, AStoredMarkerIsNotDoubledWithEtre) {
  expectForms(built("allé(e)", kEtre), {{24, "suis allé(e)"}, {29, "sont allé(e)s"}});
}

TEST(CompoundTenses, AStoredMarkerIsRemovedWithAvoir) {
  expectForms(built("allé(e)", kAvoir), {{24, "ai allé"}, {97, "avoir allé"}});
}

TEST(CompoundTenses, OnlyTheFirstVariantOfTheParticipleIsUsed) {
  expectForms(built("béni/bénit", kAvoir), {{24, "ai béni"}});
  expectForms(built("dû, due", kAvoir), {{24, "ai dû"}});
  expectForms(built("sous; soute", kAvoir), {{24, "ai sous"}});
  expectForms(built("absous, absoute(e)", kEtre), {{24, "suis absous(e)"}});
}

TEST(CompoundTenses, WhatStandsBeforeTheSeparatorIsUsedAsItIs) {
  expectForms(built("béni / bénit", kAvoir), {{24, "ai béni "}});
}

TEST(CompoundTenses, WithoutAParticipleNothingIsWritten) {
  for (const std::string_view participle : {"", "/béni", ",x", ";"}) {
    FormTable forms = withParticiple(participle);
    forms[24] = "kept";
    forms[25] = "*";
    buildCompoundTenses(forms, kAvoir, {});
    expectForms(forms, {{24, "kept"}, {25, "*"}, {30, ""}, {97, ""}});
  }
}

TEST(CompoundTenses, InPlaceholderModeOnlyPlaceholdersAreRewritten) {
  FormTable forms = withParticiple("parlé");
  forms[25] = "*";
  forms[26] = "own";
  forms[97] = "*";
  buildCompoundTenses(forms, kAvoir, {.placeholdersOnly = true});
  expectForms(forms, {{24, ""}, {25, "as parlé"}, {26, "own"}, {97, "avoir parlé"}, {100, ""}});
}

TEST(CompoundTenses, APlaceholderInSlot24MeansPlaceholdersOnly) {
  FormTable forms = withParticiple("parlé");
  forms[24] = "*";
  forms[25] = "own";
  buildCompoundTenses(forms, kAvoir, {});
  expectForms(forms, {{24, "ai parlé"}, {25, "own"}, {26, ""}});
}

TEST(CompoundTenses, OnScreenAnEmptySlotStaysEmpty) {
  FormTable forms = built("parlé", kAvoir);
  forms[25] = forms[93] = forms[100] = "";
  buildCompoundTenses(forms, kEtre, {.keepsEmptySlots = true});
  expectForms(forms,
              {{24, "suis parlé(e)"}, {25, ""}, {93, ""}, {94, "soyons parlé(e)"}, {100, ""}});
}

TEST(CompoundTenses, WhileBeingBuiltAnEmptySlotIsFilled) {
  EXPECT_EQ(toUtf8(built("parlé", kAvoir)[25]), "as parlé");
}

TEST(CompoundTenses, SimpleSlotsAreNotTouched) {
  const FormTable forms = built("parlé", kAvoir);
  for (int slot = 0; slot < kSlotCount; ++slot) {
    const bool isCompound = (slot >= 24 && slot < 48) || (slot >= 60 && slot < 72) ||
                            (slot >= 78 && slot < 90) || (slot >= 93 && slot < 96) || slot == 97 ||
                            slot == 99 || slot == 100;
    EXPECT_EQ(!forms[slot].empty(), isCompound) << slot;
  }
}

TEST(CompoundTenses, APlaceholderIsNoticedInEveryCompoundSlotAndNowhereElse) {
  const FormTable full = built("parlé", kAvoir);
  for (int slot = 0; slot < kSlotCount; ++slot) {
    FormTable forms;
    forms[slot] = "*";
    EXPECT_EQ(hasCompoundPlaceholder(forms), !full[slot].empty() && slot != 99) << slot;
  }
}

}  // namespace
}  // namespace odmiennik::engine
