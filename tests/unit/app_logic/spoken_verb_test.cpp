// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader says of a verb.
#include "app/logic/spoken_verb.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

using engine::Group;
using engine::KnownAuxiliary;
using engine::Use;

engine::VerbInformation known(Group group, Use transitive, Use intransitive,
                              KnownAuxiliary auxiliary) {
  return {.group = group,
          .transitive = transitive,
          .intransitive = intransitive,
          .auxiliary = auxiliary};
}

TEST(spoken_verb, tells_group_auxiliary_and_transitivity) {
  EXPECT_EQ(spokenVerb("parler", known(Group::first, Use::yes, Use::yes, KnownAuxiliary::avoir)),
            "parler: grupa pierwsza, czasownik posiłkowy avoir, przechodni i nieprzechodni.");
  EXPECT_EQ(spokenVerb("aller", known(Group::third, Use::no, Use::yes, KnownAuxiliary::etre)),
            "aller: grupa trzecia, czasownik posiłkowy être, nieprzechodni.");
  EXPECT_EQ(spokenVerb("faire", known(Group::third, Use::yes, Use::no, KnownAuxiliary::avoir)),
            "faire: grupa trzecia, czasownik posiłkowy avoir, przechodni.");
}

TEST(spoken_verb, tells_the_auxiliary_of_each_use) {
  EXPECT_EQ(spokenVerb("monter",
                       known(Group::first, Use::withAvoir, Use::withEtre, KnownAuxiliary::either)),
            "monter: grupa pierwsza, czasownik posiłkowy avoir lub être, "
            "przechodni (avoir) i nieprzechodni (être).");
}

TEST(spoken_verb, names_a_defective_verb_without_a_group) {
  EXPECT_EQ(spokenVerb("gésir", known(Group::defective, Use::no, Use::yes, KnownAuxiliary::avoir)),
            "gésir: ułomny, czasownik posiłkowy avoir, nieprzechodni.");
}

TEST(spoken_verb, says_what_is_not_known) {
  EXPECT_EQ(spokenVerb("zyzer", {}),
            "zyzer: grupa nieznana, czasownik posiłkowy nieznany, przechodniość nieznana.");
}

TEST(spoken_verb, says_of_a_pronominal_verb_that_it_is_neither) {
  EXPECT_EQ(spokenVerb("se laver", known(Group::first, Use::no, Use::no, KnownAuxiliary::etre)),
            "se laver: grupa pierwsza, czasownik posiłkowy être, ani przechodni, ani "
            "nieprzechodni.");
}

}  // namespace
}  // namespace odmiennik::app
