// SPDX-License-Identifier: GPL-3.0-or-later
// The Conjugate command from the typed text to the boxes.
#include "engine/driver.h"

#include <gtest/gtest.h>

#include "tests/support/test_program.h"

namespace odmiennik::engine {
namespace {

using odmiennik::testing::TestProgram;
using odmiennik::testing::UserRecord;
using Notices = std::vector<Notice>;

TEST(driver, conjugates_a_known_verb_without_a_message) {
  TestProgram program;
  EXPECT_EQ(program.conjugate("parler"), Outcome::conjugated);
  EXPECT_EQ(program.boxesOfTense(0), "parle | parles | parle | parlons | parlez | parlent");
  EXPECT_EQ(program.box(24), "ai parlé");
  EXPECT_EQ(program.notices(), Notices{});
  EXPECT_EQ(program.state().source, Source::rule);
}

TEST(driver, trims_lowers_and_takes_se_laver_as_pronominal) {
  TestProgram program;
  program.conjugate("  Se Laver  ");
  EXPECT_EQ(program.box(0), "me lave");
  EXPECT_EQ(program.box(24), "me suis lavé(e)");
  EXPECT_EQ(program.box(96), "se laver");
  EXPECT_EQ(program.box(99), "lavé(e)");
  EXPECT_EQ(program.information().transitive, Use::no);
  EXPECT_EQ(program.information().intransitive, Use::no);
  EXPECT_EQ(program.information().auxiliary, KnownAuxiliary::etre);
  EXPECT_EQ(program.auxiliary(), kEtre);
}

TEST(driver, takes_a_typographic_apostrophe_for_the_plain_one) {
  TestProgram program;
  program.conjugate("S’asseoir");
  EXPECT_EQ(program.box(96), "s'asseoir");
  EXPECT_EQ(program.box(0), "m'assois/assieds");
}

TEST(driver, removes_one_reflexive_prefix_only) {
  TestProgram program;
  program.conjugate("se se laver");
  EXPECT_EQ(program.state().flags.normalizedInput, "se laver");
  EXPECT_EQ(program.slot(96), "se laver") << "it has its prefix, so none is added";
  EXPECT_EQ(program.slot(99), "se lavé(e)");
}

TEST(driver, trims_nothing_behind_the_prefix) {
  TestProgram program;
  program.conjugate("se  laver");
  EXPECT_EQ(program.state().flags.normalizedInput, " laver");
  EXPECT_EQ(program.slot(96), "se  laver");
}

TEST(driver, conjugates_capitals_with_accents_as_small_letters) {
  TestProgram program;
  program.conjugate("ÊTRE");
  EXPECT_EQ(program.box(0), "suis");
  program.conjugate("ŒUVRER");
  EXPECT_EQ(program.box(0), "œuvre");
  program.conjugate("ÉCOUTER");
  EXPECT_EQ(program.box(0), "écoute");
}

TEST(driver, a_tab_or_control_character_belongs_to_the_infinitive) {
  TestProgram program;
  EXPECT_EQ(program.conjugate("\tparler"), Outcome::conjugated);
  EXPECT_EQ(program.box(0), "\tparle");
  EXPECT_EQ(program.notices(), Notices{Notice::conjugatedRegularly});
  EXPECT_EQ(program.conjugate("parler\t"), Outcome::refused);
  EXPECT_EQ(program.conjugate("\x01"), Outcome::refused);
}

TEST(driver, resetuj_comes_before_everything_else) {
  TestProgram program;
  program.conjugate("parler");
  const int questions = program.indexQuestions();
  EXPECT_EQ(program.conjugate("  RESETUJ "), Outcome::reset);
  EXPECT_EQ(program.resets(), 1);
  EXPECT_EQ(program.indexQuestions(), questions) << "nothing is looked up";
  EXPECT_EQ(program.state().source, Source::none);
  EXPECT_EQ(program.notices(), Notices{});
}

TEST(driver, resetuj_with_a_reflexive_prefix_is_a_verb_like_any_other) {
  TestProgram program;
  EXPECT_EQ(program.conjugate("se resetuj"), Outcome::refused);
  EXPECT_EQ(program.resets(), 0);
}

TEST(driver, an_unknown_verb_that_a_rule_takes_is_conjugated_with_a_message) {
  TestProgram program;
  program.tellRecord("parler", "");
  EXPECT_EQ(program.conjugate("parler"), Outcome::conjugated);
  EXPECT_EQ(program.box(0), "parle");
  EXPECT_EQ(program.notices(), Notices{Notice::conjugatedRegularly});
  EXPECT_EQ(program.information().group, Group::unknown);
  EXPECT_TRUE(program.information().isAuxiliaryFree);
}

TEST(driver, a_verb_that_no_rule_takes_is_refused) {
  TestProgram program;
  program.conjugate("parler");
  EXPECT_EQ(program.conjugate("bla"), Outcome::refused);
  EXPECT_EQ(program.notices(), Notices{Notice::notConjugable});
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_EQ(program.box(slot), slot == 96 ? "bla" : " -- ") << slot;
  EXPECT_EQ(program.state().source, Source::none);
  EXPECT_EQ(program.state().model, "");
}

TEST(driver, a_refused_verb_keeps_the_labels_of_its_record) {
  TestProgram program;
  program.tellRecord("bla", "|4|2|1|2");
  program.conjugate("bla");
  EXPECT_EQ(program.information().group, Group::defective);
  EXPECT_EQ(program.information().auxiliary, KnownAuxiliary::etre);
  EXPECT_EQ(program.auxiliary(), kEtre);
}

TEST(driver, the_empty_text_and_a_prefix_alone_are_refused) {
  for (const std::string_view typed : {"", "   ", "se ", "s'", "se", "e", "'"}) {
    TestProgram program;
    EXPECT_EQ(program.conjugate(typed), Outcome::refused) << typed;
    EXPECT_EQ(program.box(0), " -- ") << typed;
  }
}

TEST(driver, the_endings_alone_are_conjugated) {
  TestProgram program;
  program.conjugate("er");
  EXPECT_EQ(program.boxesOfTense(0), "e | es | e | ons | ez | ent");
  program.conjugate("ir");
  EXPECT_EQ(program.boxesOfTense(0), "is | is | it | issons | issez | issent");
}

TEST(driver, ten_thousand_letters_are_conjugated_like_one) {
  TestProgram program;
  const std::string stem(9998, 'x');
  EXPECT_EQ(program.conjugate(stem + "er"), Outcome::conjugated);
  EXPECT_EQ(program.box(3), stem + "ons");
}

TEST(driver, a_user_verb_wins_over_the_built_in_verb) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "own form"}, {96, "aller"}}, .auxiliary = kAvoir});
  program.conjugate("aller");
  EXPECT_EQ(program.box(0), "own form");
  EXPECT_EQ(program.state().source, Source::user);
  EXPECT_EQ(program.notices(), Notices{});
}

TEST(driver, a_user_verb_shows_no_data_but_its_auxiliary) {
  TestProgram program;
  program.addUserVerb({.slots = {{96, "parler"}, {99, "parlé"}, {24, "*"}}, .auxiliary = kEtre});
  program.conjugate("parler");
  EXPECT_EQ(program.box(24), "suis parlé(e)");
  EXPECT_EQ(program.information().group, Group::unknown);
  EXPECT_EQ(program.information().transitive, Use::unknown);
  EXPECT_EQ(program.information().intransitive, Use::unknown);
  EXPECT_EQ(program.information().auxiliary, KnownAuxiliary::etre);
  EXPECT_EQ(program.auxiliary(), kEtre);
  EXPECT_TRUE(program.information().isAuxiliaryFree);
}

TEST(driver, a_user_verb_entered_pronominally_takes_etre_whatever_its_record_says) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "lave"}, {96, "laver"}, {99, "lavé"}, {24, "*"}}});
  program.conjugate("se laver");
  EXPECT_EQ(program.box(0), "me lave");
  EXPECT_EQ(program.box(24), "me suis lavé(e)");
  EXPECT_EQ(program.auxiliary(), kEtre);
}

TEST(driver, a_user_verb_is_not_impersonal) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "pleus"}, {96, "pleuvoir"}}});
  program.conjugate("pleuvoir");
  EXPECT_EQ(program.box(0), "pleus");
}

TEST(driver, a_user_verb_saved_with_capitals_blanks_or_its_pronoun_is_found) {
  for (const std::string_view saved : {"Aimer", " aimer ", "s'aimer", "S’AIMER"}) {
    TestProgram program;
    program.addUserVerb({.slots = {{0, "own"}, {96, std::string(saved)}}});
    program.conjugate("aimer");
    EXPECT_EQ(program.box(0), "own") << saved;
  }
}

TEST(driver, the_pronominal_verb_that_the_user_saved_is_never_shown_with_two_pronouns) {
  const UserRecord record{.slots = {{0, "me lave"},
                                    {1, "te laves"},
                                    {3, "nous lavons"},
                                    {90, "lave-toi"},
                                    {96, "se laver"}},
                          .auxiliary = kEtre};
  TestProgram program;
  program.addUserVerb(record);
  program.conjugate("se laver");
  EXPECT_EQ(program.box(0), "me lave");
  EXPECT_EQ(program.box(3), "nous lavons");
  EXPECT_EQ(program.box(90), "lave-toi");
  program.conjugate("laver");
  EXPECT_EQ(program.box(0), "lave");
  EXPECT_EQ(program.box(3), "lavons");
  EXPECT_EQ(program.box(90), "lave");
}

TEST(driver, the_first_matching_user_verb_wins) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "other"}, {96, "chanter"}}});
  program.addUserVerb({.slots = {{0, "first"}, {96, "aimer"}}});
  program.addUserVerb({.slots = {{0, "second"}, {96, "aimer"}}});
  program.conjugate("aimer");
  EXPECT_EQ(program.box(0), "first");
}

TEST(driver, user_verbs_that_do_not_match_leave_no_trace) {
  TestProgram program;
  program.addUserVerb({.slots = {{0, "other"}, {100, "other"}, {96, "chanter"}}});
  program.conjugate("parler");
  EXPECT_EQ(program.box(0), "parle");
  EXPECT_EQ(program.box(100), "ayant parlé");
}

TEST(driver, slots_that_a_model_does_not_write_are_empty_whatever_stood_there) {
  TestProgram program;
  program.addUserVerb({.slots = {{12, "other"}, {54, "other"}, {96, "chanter"}}});
  program.conjugate("parler");
  program.conjugate("extraire");
  EXPECT_EQ(program.tense(12), " |  |  |  |  | ");
  EXPECT_EQ(program.tense(54), " |  |  |  |  | ");
}

TEST(driver, a_bare_croitre_that_is_not_built_in_is_left_alone) {
  TestProgram program;
  program.forgetBuiltinVerbs();
  program.conjugate("parler");
  EXPECT_EQ(program.conjugate("croître"), Outcome::conjugated);
  EXPECT_EQ(program.notices(), Notices{}) << "the index knows it";
  for (int slot = 0; slot < kSlotCount; ++slot)
    EXPECT_EQ(program.slot(slot), slot == 96 ? "croître" : "") << slot;
}

TEST(driver, a_built_in_verb_is_completed) {
  TestProgram program;
  program.conjugate("aller");
  EXPECT_EQ(program.state().source, Source::builtin);
  EXPECT_EQ(program.boxesOfTense(0), "vais | vas | va | allons | allez | vont");
  EXPECT_EQ(program.box(27), "sommes allé(e)s");
  for (int slot = 0; slot < kSlotCount; ++slot) EXPECT_NE(program.box(slot), "*") << slot;
}

TEST(driver, a_missing_form_of_a_built_in_verb_is_empty_and_shows_two_hyphens) {
  TestProgram program;
  program.conjugate("falloir");
  EXPECT_EQ(program.slot(0), "");
  EXPECT_EQ(program.box(0), " -- ");
  EXPECT_EQ(program.box(2), "faut");
}

TEST(driver, a_built_in_verb_that_carries_its_pronoun_is_found_without_it) {
  for (const std::string_view typed : {"s'ensuivre", "ensuivre"}) {
    TestProgram program;
    program.conjugate(typed);
    EXPECT_EQ(program.state().source, Source::builtin) << typed;
    EXPECT_EQ(program.slot(96), "s'ensuivre") << typed;
  }
}

TEST(driver, the_hidden_entries_are_found_like_verbs) {
  for (const std::string_view typed : {"autor", "pozdrowienia"}) {
    TestProgram program;
    EXPECT_EQ(program.conjugate(typed), Outcome::conjugated) << typed;
    EXPECT_EQ(program.state().source, Source::builtin) << typed;
    EXPECT_EQ(program.notices(), Notices{}) << typed;
    EXPECT_EQ(program.slot(96), typed);
  }
}

TEST(driver, ils_aurainet_stands_in_slots_77_and_83_of_avoir) {
  TestProgram program;
  program.conjugate("avoir");
  EXPECT_EQ(program.box(77), "aurainet");
  EXPECT_EQ(program.box(83), "aurainet eu");
}

TEST(driver, ils_aurainet_stands_in_slot_83_of_every_verb_with_avoir) {
  TestProgram program;
  for (const std::string_view verb : {"parler", "finir", "prendre", "savoir"}) {
    program.conjugate(verb);
    EXPECT_EQ(program.box(83), "aurainet " + program.slot(99)) << verb;
  }
}

TEST(driver, an_impersonal_verb_shows_its_il_forms_infinitives_and_participles) {
  TestProgram program;
  program.conjugate("bruiner");
  for (int slot = 0; slot < kSlotCount; ++slot) {
    const bool isShown = (slot < 89 && slot % 6 == 2) || (slot >= 96 && slot <= 99);
    EXPECT_EQ(program.box(slot) != " -- ", isShown) << slot;
  }
  EXPECT_EQ(program.box(2), "bruine");
  EXPECT_EQ(program.box(26), "a bruiné");
}

TEST(driver, an_impersonal_mark_ends_with_the_next_conjugation) {
  TestProgram program;
  program.conjugate("bruiner");
  program.conjugate("parler");
  EXPECT_EQ(program.box(0), "parle");
}

TEST(driver, a_verb_marked_pronominal_by_its_record_is_conjugated_pronominally) {
  TestProgram program;
  program.conjugate("absenter");
  EXPECT_EQ(program.box(0), "m'absente");
  EXPECT_EQ(program.box(90), "absente-toi");
  EXPECT_EQ(program.box(93), " -- ");
  EXPECT_EQ(program.box(24), "me suis absenté(e)");
  EXPECT_EQ(program.information().auxiliary, KnownAuxiliary::etre);
  EXPECT_TRUE(program.state().shown.isPronominal);
  EXPECT_FALSE(program.state().flags.isPronominal) << "cleared after the command";
}

TEST(driver, a_mute_h_elides_je_and_an_aspirated_one_does_not) {
  TestProgram program;
  program.conjugate("habiter");
  EXPECT_EQ(program.pronoun(0), "j'");
  program.conjugate("haïr");
  EXPECT_EQ(program.pronoun(0), "je");
  program.conjugate("se haïr");
  EXPECT_EQ(program.box(0), "me hais");
  program.conjugate("s'habiller");
  EXPECT_EQ(program.box(0), "m'habille");
  EXPECT_EQ(program.pronoun(0), "je");
}

TEST(driver, falloir_shows_il_ne_crois_pas_que_above_its_subjunctives) {
  TestProgram program;
  program.conjugate("falloir");
  EXPECT_EQ(program.caption(0), "Il ne crois pas que ...");
  EXPECT_EQ(program.caption(3), "Il ne croyais pas que ...");
  program.conjugate("parler");
  EXPECT_EQ(program.caption(0), "Il faut que ...");
}

TEST(driver, every_conjugation_starts_with_avoir) {
  TestProgram program;
  program.conjugate("aller");
  program.tellRecord("blaguer", "");
  program.conjugate("blaguer");
  EXPECT_EQ(program.auxiliary(), kAvoir);
  EXPECT_EQ(program.box(24), "ai blagué");
}

TEST(driver, an_empty_slot_of_a_pronominal_verb_takes_no_pronoun) {
  TestProgram program;
  program.conjugate("s'ensuivre");
  EXPECT_EQ(program.box(0), " -- ");
  EXPECT_EQ(program.pronoun(0), "je") << "its subject pronoun is chosen all the same";
  EXPECT_EQ(program.box(2), "s'ensuit");
}

TEST(driver, the_same_verb_twice_gives_the_same) {
  TestProgram program;
  program.conjugate("s'asseoir");
  const std::string first = program.boxesOfTense(0) + program.boxesOfTense(96);
  program.conjugate("bla");
  program.conjugate("s'asseoir");
  EXPECT_EQ(program.boxesOfTense(0) + program.boxesOfTense(96), first);
}

}  // namespace
}  // namespace odmiennik::engine
