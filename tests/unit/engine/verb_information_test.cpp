// The verb-information record: fields by position, unknown codes, flags.
#include "engine/verb_information.h"

#include <gtest/gtest.h>

namespace odmiennik::engine {
namespace {

struct Reading {
  EngineFlags flags;
  VerbInformation information;

  explicit Reading(std::string_view record) { applyRecord(record, flags, information); }
  [[nodiscard]] std::string_view group() const { return information.labels.lblGrupaWartość; }
  [[nodiscard]] std::string_view transitive() const {
    return information.labels.lblPrzechodniWartość;
  }
  [[nodiscard]] std::string_view intransitive() const {
    return information.labels.lblNieprzechodniWartość;
  }
  [[nodiscard]] std::string_view auxiliary() const {
    return information.labels.lblPosiłkowyWartość;
  }
};

TEST(VerbInformation, StartsWithoutDataAndTheBoxCheckedAndEnabled) {
  const VerbInformation information;
  EXPECT_EQ(information.labels.lblGrupaWartość, "b.d.");
  EXPECT_EQ(information.labels.lblPrzechodniWartość, "b.d.");
  EXPECT_EQ(information.labels.lblNieprzechodniWartość, "b.d.");
  EXPECT_EQ(information.labels.lblPosiłkowyWartość, "b.d.");
  EXPECT_EQ(information.labels.lblRządWartość, "b.d.");
  EXPECT_TRUE(information.chkZAvoir.isChecked);
  EXPECT_TRUE(information.chkZAvoir.isEnabled);
  EXPECT_EQ(EngineFlags{}.auxiliary, 1);
}

TEST(VerbInformation, GroupsHaveTheirNames) {
  EXPECT_EQ(Reading("|1|1|1|1").group(), "pierwsza");
  EXPECT_EQ(Reading("|2|1|1|1").group(), "druga");
  EXPECT_EQ(Reading("|3|1|1|1").group(), "trzecia");
  EXPECT_EQ(Reading("|4|1|1|1").group(), "ułomny");
}

TEST(VerbInformation, UsesHaveTheirNames) {
  constexpr std::string_view kNames[] = {"tak", "nie", "tak, avoir", "tak, être"};
  for (int code = 1; code <= 4; ++code) {
    const std::string digit = std::to_string(code);
    EXPECT_EQ(Reading("|1|" + digit + "|x|1").transitive(), kNames[code - 1]);
    EXPECT_EQ(Reading("|1|x|" + digit + "|1").intransitive(), kNames[code - 1]);
  }
}

TEST(VerbInformation, AvoirChecksAndDisablesTheBox) {
  const Reading reading("|1|1|1|1");
  EXPECT_EQ(reading.auxiliary(), "avoir");
  EXPECT_TRUE(reading.information.chkZAvoir.isChecked);
  EXPECT_FALSE(reading.information.chkZAvoir.isEnabled);
  EXPECT_EQ(reading.flags.auxiliary, kAvoir);
}

TEST(VerbInformation, EtreClearsAndDisablesTheBox) {
  const Reading reading("|3|2|1|2");
  EXPECT_EQ(reading.auxiliary(), "être");
  EXPECT_FALSE(reading.information.chkZAvoir.isChecked);
  EXPECT_FALSE(reading.information.chkZAvoir.isEnabled);
  EXPECT_EQ(reading.flags.auxiliary, kEtre);
}

TEST(VerbInformation, AvoirOrEtreChecksAndEnablesTheBox) {
  const Reading reading("|3|3|4|3");
  EXPECT_EQ(reading.auxiliary(), "avoir lub être");
  EXPECT_TRUE(reading.information.chkZAvoir.isChecked);
  EXPECT_TRUE(reading.information.chkZAvoir.isEnabled);
  EXPECT_EQ(reading.flags.auxiliary, kAvoir);
}

TEST(VerbInformation, AFlagOfOneMeansImpersonal) {
  const Reading reading("|3|2|1|1|1");
  EXPECT_TRUE(reading.flags.isImpersonal);
  EXPECT_FALSE(reading.flags.isPronominal);
  EXPECT_FALSE(reading.flags.hAspirate);
}

TEST(VerbInformation, AFlagOfTwoMeansPronominal) {
  const Reading reading("|1|2|2|2|2");
  EXPECT_TRUE(reading.flags.isPronominal);
  EXPECT_FALSE(reading.flags.isImpersonal);
}

TEST(VerbInformation, AnHInFrontMeansAspiratedAndTheFlagIsNotLookedAt) {
  for (const std::string_view record : {"h|1|1|1|1|0", "h|1|1|1|1|1", "hx|1|1|1|1|2"}) {
    const Reading reading(record);
    EXPECT_TRUE(reading.flags.hAspirate) << record;
    EXPECT_FALSE(reading.flags.isImpersonal) << record;
    EXPECT_FALSE(reading.flags.isPronominal) << record;
  }
}

TEST(VerbInformation, WithoutASixthFieldThereIsNoAspiratedHAndNoFlag) {
  const Reading reading("h|1|1|1|1");
  EXPECT_FALSE(reading.flags.hAspirate);
  EXPECT_FALSE(Reading("|1|1|1|2").flags.isPronominal);
  EXPECT_FALSE(Reading("|1|1|1|1").flags.isImpersonal);
}

TEST(VerbInformation, TheHMustBeTheFirstCharacter) {
  EXPECT_FALSE(Reading(" h|1|1|1|1|0").flags.hAspirate);
  EXPECT_FALSE(Reading("xh|1|1|1|1|0").flags.hAspirate);
}

TEST(VerbInformation, TheFlagIsTheRecordsLastCharacter) {
  EXPECT_TRUE(Reading("|1|1|1|1|xx1").flags.isImpersonal);
  EXPECT_TRUE(Reading("|1|1|1|1|0|2").flags.isPronominal);
  EXPECT_FALSE(Reading("|1|1|1|1|1x").flags.isImpersonal);
  EXPECT_FALSE(Reading("|1|1|1|1|").flags.isImpersonal);
}

TEST(VerbInformation, AFreeTextDoesNotShiftTheFields) {
  const Reading reading("free text|2|2|1|2");
  EXPECT_EQ(reading.group(), "druga");
  EXPECT_EQ(reading.transitive(), "nie");
  EXPECT_EQ(reading.auxiliary(), "être");
}

TEST(VerbInformation, TheEmptyRecordShowsNoDataAndEnablesTheBox) {
  Reading reading("|1|1|1|2");
  applyRecord("", reading.flags, reading.information);
  EXPECT_EQ(reading.group(), "b.d.");
  EXPECT_EQ(reading.transitive(), "b.d.");
  EXPECT_EQ(reading.intransitive(), "b.d.");
  EXPECT_EQ(reading.auxiliary(), "b.d.");
  EXPECT_EQ(reading.information.labels.lblRządWartość, "b.d.");
  EXPECT_TRUE(reading.information.chkZAvoir.isEnabled);
  EXPECT_EQ(reading.flags.auxiliary, kEtre) << "only the conjugate command sets it back";
}

TEST(VerbInformation, UnknownCodesChangeNothing) {
  for (const std::string_view record :
       {"|5|5|5|4", "|0|0|0|0", "|x|x|x|x", "|3|11|12|13", "| |||", "|9|tak|nie|avoir"}) {
    Reading reading("|3|4|2|2");
    applyRecord(record, reading.flags, reading.information);
    EXPECT_EQ(reading.group(), "trzecia") << record;
    EXPECT_EQ(reading.transitive(), "tak, être") << record;
    EXPECT_EQ(reading.intransitive(), "nie") << record;
    EXPECT_EQ(reading.auxiliary(), "être") << record;
    EXPECT_EQ(reading.flags.auxiliary, kEtre) << record;
    EXPECT_FALSE(reading.information.chkZAvoir.isEnabled) << record;
  }
}

TEST(VerbInformation, MissingFieldsChangeNothing) {
  for (const std::string_view record :
       {"x", "|", "|1", "|1|", "|1|1", "|1|1|", "|1|1|1", "|1|1|1|"}) {
    Reading reading("|3|4|4|2");
    applyRecord(record, reading.flags, reading.information);
    EXPECT_EQ(reading.auxiliary(), "être") << record;
    EXPECT_EQ(reading.flags.auxiliary, kEtre) << record;
    EXPECT_FALSE(reading.flags.isImpersonal) << record;
    EXPECT_FALSE(reading.flags.isPronominal) << record;
  }
}

TEST(VerbInformation, FieldsUpToTheMissingOnesAreShown) {
  EXPECT_EQ(Reading("|2").group(), "druga");
  EXPECT_EQ(Reading("|2|1|2").transitive(), "tak");
  EXPECT_EQ(Reading("|2|1|2|").intransitive(), "nie");
}

TEST(VerbInformation, TheSecondFieldBeginsThreeCharactersBehindTheFirstBar) {
  // A group of two characters shifts the reading: the second field then begins at its bar.
  const Reading reading("|12|1|2|2");
  EXPECT_EQ(reading.group(), "pierwsza");
  EXPECT_EQ(reading.transitive(), "b.d.");
  EXPECT_EQ(reading.intransitive(), "tak");
}

TEST(VerbInformation, APronominalVerbIsNeitherTransitiveNorIntransitiveAndTakesEtre) {
  Reading reading("|1|1|1|3");
  applyPronominal(reading.flags, reading.information);
  EXPECT_EQ(reading.transitive(), "nie");
  EXPECT_EQ(reading.intransitive(), "nie");
  EXPECT_EQ(reading.auxiliary(), "être");
  EXPECT_FALSE(reading.information.chkZAvoir.isChecked);
  EXPECT_TRUE(reading.information.chkZAvoir.isEnabled) << "stays as the record set it";
  EXPECT_EQ(reading.flags.auxiliary, kEtre);
  EXPECT_EQ(reading.group(), "pierwsza");
}

TEST(VerbInformation, OfAStoredVerbOnlyTheAuxiliaryIsKnown) {
  Reading reading("|1|1|1|1");
  reading.flags.auxiliary = kEtre;
  applyStoredVerb(reading.flags, reading.information);
  EXPECT_EQ(reading.group(), "b.d.");
  EXPECT_EQ(reading.transitive(), "b.d.");
  EXPECT_EQ(reading.intransitive(), "b.d.");
  EXPECT_EQ(reading.auxiliary(), "être");
  EXPECT_FALSE(reading.information.chkZAvoir.isChecked);
  EXPECT_TRUE(reading.information.chkZAvoir.isEnabled);
}

}  // namespace
}  // namespace odmiennik::engine
