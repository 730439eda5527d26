// SPDX-License-Identifier: GPL-3.0-or-later
// The verb-information record: fields by position, unknown codes, flags.
#include "engine/verb_information.h"

#include <gtest/gtest.h>

namespace odmiennik::engine {
namespace {

struct Reading {
  EngineFlags flags;
  VerbInformation information;

  explicit Reading(std::string_view record) { applyRecord(record, flags, information); }
  [[nodiscard]] Group group() const { return information.group; }
  [[nodiscard]] Use transitive() const { return information.transitive; }
  [[nodiscard]] Use intransitive() const { return information.intransitive; }
  [[nodiscard]] KnownAuxiliary auxiliary() const { return information.auxiliary; }
};

TEST(verb_information, starts_without_data_and_with_a_free_auxiliary_avoir) {
  const VerbInformation information;
  EXPECT_EQ(information.group, Group::unknown);
  EXPECT_EQ(information.transitive, Use::unknown);
  EXPECT_EQ(information.intransitive, Use::unknown);
  EXPECT_EQ(information.auxiliary, KnownAuxiliary::unknown);
  EXPECT_TRUE(information.isAuxiliaryFree);
  EXPECT_EQ(EngineFlags{}.auxiliary, kAvoir);
}

TEST(verb_information, a_group_is_its_code) {
  EXPECT_EQ(Reading("|1|1|1|1").group(), Group::first);
  EXPECT_EQ(Reading("|2|1|1|1").group(), Group::second);
  EXPECT_EQ(Reading("|3|1|1|1").group(), Group::third);
  EXPECT_EQ(Reading("|4|1|1|1").group(), Group::defective);
}

TEST(verb_information, a_use_is_its_code) {
  constexpr Use kUses[] = {Use::yes, Use::no, Use::withAvoir, Use::withEtre};
  for (int code = 1; code <= 4; ++code) {
    const std::string digit = std::to_string(code);
    EXPECT_EQ(Reading("|1|" + digit + "|x|1").transitive(), kUses[code - 1]);
    EXPECT_EQ(Reading("|1|x|" + digit + "|1").intransitive(), kUses[code - 1]);
  }
}

TEST(verb_information, avoir_is_set_and_not_free) {
  const Reading reading("|1|1|1|1");
  EXPECT_EQ(reading.auxiliary(), KnownAuxiliary::avoir);
  EXPECT_FALSE(reading.information.isAuxiliaryFree);
  EXPECT_EQ(reading.flags.auxiliary, kAvoir);
}

TEST(verb_information, etre_is_set_and_not_free) {
  const Reading reading("|3|2|1|2");
  EXPECT_EQ(reading.auxiliary(), KnownAuxiliary::etre);
  EXPECT_FALSE(reading.information.isAuxiliaryFree);
  EXPECT_EQ(reading.flags.auxiliary, kEtre);
}

TEST(verb_information, of_avoir_and_etre_avoir_is_set_and_free) {
  const Reading reading("|3|3|4|3");
  EXPECT_EQ(reading.auxiliary(), KnownAuxiliary::either);
  EXPECT_TRUE(reading.information.isAuxiliaryFree);
  EXPECT_EQ(reading.flags.auxiliary, kAvoir);
}

TEST(verb_information, a_flag_of_one_means_impersonal) {
  const Reading reading("|3|2|1|1|1");
  EXPECT_TRUE(reading.flags.isImpersonal);
  EXPECT_FALSE(reading.flags.isPronominal);
  EXPECT_FALSE(reading.flags.hAspirate);
}

TEST(verb_information, a_flag_of_two_means_pronominal) {
  const Reading reading("|1|2|2|2|2");
  EXPECT_TRUE(reading.flags.isPronominal);
  EXPECT_FALSE(reading.flags.isImpersonal);
}

TEST(verb_information, an_h_in_front_means_aspirated_and_the_flag_is_not_looked_at) {
  for (const std::string_view record : {"h|1|1|1|1|0", "h|1|1|1|1|1", "hx|1|1|1|1|2"}) {
    const Reading reading(record);
    EXPECT_TRUE(reading.flags.hAspirate) << record;
    EXPECT_FALSE(reading.flags.isImpersonal) << record;
    EXPECT_FALSE(reading.flags.isPronominal) << record;
  }
}

TEST(verb_information, without_a_sixth_field_there_is_no_aspirated_h_and_no_flag) {
  const Reading reading("h|1|1|1|1");
  EXPECT_FALSE(reading.flags.hAspirate);
  EXPECT_FALSE(Reading("|1|1|1|2").flags.isPronominal);
  EXPECT_FALSE(Reading("|1|1|1|1").flags.isImpersonal);
}

TEST(verb_information, the_h_must_be_the_first_character) {
  EXPECT_FALSE(Reading(" h|1|1|1|1|0").flags.hAspirate);
  EXPECT_FALSE(Reading("xh|1|1|1|1|0").flags.hAspirate);
}

TEST(verb_information, the_flag_is_the_records_last_character) {
  EXPECT_TRUE(Reading("|1|1|1|1|xx1").flags.isImpersonal);
  EXPECT_TRUE(Reading("|1|1|1|1|0|2").flags.isPronominal);
  EXPECT_FALSE(Reading("|1|1|1|1|1x").flags.isImpersonal);
  EXPECT_FALSE(Reading("|1|1|1|1|").flags.isImpersonal);
}

TEST(verb_information, a_free_text_does_not_shift_the_fields) {
  const Reading reading("free text|2|2|1|2");
  EXPECT_EQ(reading.group(), Group::second);
  EXPECT_EQ(reading.transitive(), Use::no);
  EXPECT_EQ(reading.auxiliary(), KnownAuxiliary::etre);
}

TEST(verb_information, the_empty_record_leaves_nothing_known_and_the_auxiliary_free) {
  Reading reading("|1|1|1|2");
  applyRecord("", reading.flags, reading.information);
  EXPECT_EQ(reading.group(), Group::unknown);
  EXPECT_EQ(reading.transitive(), Use::unknown);
  EXPECT_EQ(reading.intransitive(), Use::unknown);
  EXPECT_EQ(reading.auxiliary(), KnownAuxiliary::unknown);
  EXPECT_TRUE(reading.information.isAuxiliaryFree);
  EXPECT_EQ(reading.flags.auxiliary, kEtre) << "only the conjugate command sets it back";
}

TEST(verb_information, unknown_codes_change_nothing) {
  for (const std::string_view record :
       {"|5|5|5|4", "|0|0|0|0", "|x|x|x|x", "|3|11|12|13", "| |||", "|9|tak|nie|avoir"}) {
    Reading reading("|3|4|2|2");
    applyRecord(record, reading.flags, reading.information);
    EXPECT_EQ(reading.group(), Group::third) << record;
    EXPECT_EQ(reading.transitive(), Use::withEtre) << record;
    EXPECT_EQ(reading.intransitive(), Use::no) << record;
    EXPECT_EQ(reading.auxiliary(), KnownAuxiliary::etre) << record;
    EXPECT_EQ(reading.flags.auxiliary, kEtre) << record;
    EXPECT_FALSE(reading.information.isAuxiliaryFree) << record;
  }
}

TEST(verb_information, missing_fields_change_nothing) {
  for (const std::string_view record :
       {"x", "|", "|1", "|1|", "|1|1", "|1|1|", "|1|1|1", "|1|1|1|"}) {
    Reading reading("|3|4|4|2");
    applyRecord(record, reading.flags, reading.information);
    EXPECT_EQ(reading.auxiliary(), KnownAuxiliary::etre) << record;
    EXPECT_EQ(reading.flags.auxiliary, kEtre) << record;
    EXPECT_FALSE(reading.flags.isImpersonal) << record;
    EXPECT_FALSE(reading.flags.isPronominal) << record;
  }
}

TEST(verb_information, fields_up_to_the_missing_ones_are_shown) {
  EXPECT_EQ(Reading("|2").group(), Group::second);
  EXPECT_EQ(Reading("|2|1|2").transitive(), Use::yes);
  EXPECT_EQ(Reading("|2|1|2|").intransitive(), Use::no);
}

TEST(verb_information, the_second_field_begins_three_characters_behind_the_first_bar) {
  // A group of two characters shifts the reading: the second field then begins at its bar.
  const Reading reading("|12|1|2|2");
  EXPECT_EQ(reading.group(), Group::first);
  EXPECT_EQ(reading.transitive(), Use::unknown);
  EXPECT_EQ(reading.intransitive(), Use::yes);
}

TEST(verb_information, a_pronominal_verb_is_neither_transitive_nor_intransitive_and_takes_etre) {
  Reading reading("|1|1|1|3");
  applyPronominal(reading.flags, reading.information);
  EXPECT_EQ(reading.transitive(), Use::no);
  EXPECT_EQ(reading.intransitive(), Use::no);
  EXPECT_EQ(reading.auxiliary(), KnownAuxiliary::etre);
  EXPECT_TRUE(reading.information.isAuxiliaryFree) << "stays as the record set it";
  EXPECT_EQ(reading.flags.auxiliary, kEtre);
  EXPECT_EQ(reading.group(), Group::first);
}

TEST(verb_information, of_a_stored_verb_only_the_auxiliary_is_known) {
  Reading reading("|1|1|1|1");
  reading.flags.auxiliary = kEtre;
  applyStoredVerb(reading.flags, reading.information);
  EXPECT_EQ(reading.group(), Group::unknown);
  EXPECT_EQ(reading.transitive(), Use::unknown);
  EXPECT_EQ(reading.intransitive(), Use::unknown);
  EXPECT_EQ(reading.auxiliary(), KnownAuxiliary::etre);
  EXPECT_TRUE(reading.information.isAuxiliaryFree);
}

}  // namespace
}  // namespace odmiennik::engine
