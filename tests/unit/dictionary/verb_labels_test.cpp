// SPDX-License-Identifier: GPL-3.0-or-later
// The wording of what is known of a verb.
#include "dictionary/verb_labels.h"

#include <gtest/gtest.h>

namespace odmiennik::dictionary {
namespace {

using engine::Group;
using engine::KnownAuxiliary;
using engine::Use;

TEST(verb_labels, what_is_not_known_is_bd) {
  const VerbLabels labels = labelsOf({});
  for (const Utf8View label :
       {labels.group, labels.transitive, labels.intransitive, labels.auxiliary, labels.government})
    EXPECT_EQ(label, "b.d.");
}

TEST(verb_labels, groups_are_counted_in_polish) {
  EXPECT_EQ(labelsOf({.group = Group::first}).group, "pierwsza");
  EXPECT_EQ(labelsOf({.group = Group::second}).group, "druga");
  EXPECT_EQ(labelsOf({.group = Group::third}).group, "trzecia");
  EXPECT_EQ(labelsOf({.group = Group::defective}).group, "ułomny");
}

TEST(verb_labels, a_use_is_yes_or_no_or_yes_with_its_auxiliary) {
  EXPECT_EQ(labelsOf({.transitive = Use::yes}).transitive, "tak");
  EXPECT_EQ(labelsOf({.transitive = Use::no}).transitive, "nie");
  EXPECT_EQ(labelsOf({.intransitive = Use::withAvoir}).intransitive, "tak, avoir");
  EXPECT_EQ(labelsOf({.intransitive = Use::withEtre}).intransitive, "tak, être");
}

TEST(verb_labels, an_auxiliary_is_its_infinitive_and_two_are_joined_by_or) {
  EXPECT_EQ(labelsOf({.auxiliary = KnownAuxiliary::avoir}).auxiliary, "avoir");
  EXPECT_EQ(labelsOf({.auxiliary = KnownAuxiliary::etre}).auxiliary, "être");
  EXPECT_EQ(labelsOf({.auxiliary = KnownAuxiliary::either}).auxiliary, "avoir lub être");
}

TEST(verb_labels, the_box_is_captioned_with_the_auxiliary) {
  EXPECT_EQ(auxiliaryCaption(engine::kAvoir), "&se conjugué avec avoir");
  EXPECT_EQ(auxiliaryCaption(engine::kEtre), "&se conjugué avec être");
}

}  // namespace
}  // namespace odmiennik::dictionary
