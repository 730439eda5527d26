// What a screen reader says of a verb.
#include "app/logic/spoken_verb.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

engine::VerbLabels labels(std::string_view group, std::string_view transitive,
                          std::string_view intransitive, std::string_view auxiliary) {
  return {.lblGrupaWartość = group,
          .lblPrzechodniWartość = transitive,
          .lblNieprzechodniWartość = intransitive,
          .lblPosiłkowyWartość = auxiliary};
}

TEST(spoken_verb, tells_group_auxiliary_and_transitivity) {
  EXPECT_EQ(spokenVerb("parler", labels("pierwsza", "tak", "tak", "avoir")),
            "parler: grupa pierwsza, czasownik posiłkowy avoir, przechodni i nieprzechodni.");
  EXPECT_EQ(spokenVerb("aller", labels("trzecia", "nie", "tak", "être")),
            "aller: grupa trzecia, czasownik posiłkowy être, nieprzechodni.");
  EXPECT_EQ(spokenVerb("faire", labels("trzecia", "tak", "nie", "avoir")),
            "faire: grupa trzecia, czasownik posiłkowy avoir, przechodni.");
}

TEST(spoken_verb, tells_the_auxiliary_of_each_use) {
  EXPECT_EQ(spokenVerb("monter", labels("pierwsza", "tak, avoir", "tak, être", "avoir lub être")),
            "monter: grupa pierwsza, czasownik posiłkowy avoir lub être, "
            "przechodni (avoir) i nieprzechodni (être).");
}

TEST(spoken_verb, names_a_defective_verb_without_a_group) {
  EXPECT_EQ(spokenVerb("gésir", labels("ułomny", "nie", "tak", "avoir")),
            "gésir: ułomny, czasownik posiłkowy avoir, nieprzechodni.");
}

TEST(spoken_verb, says_what_is_not_known) {
  EXPECT_EQ(spokenVerb("zyzer", {}),
            "zyzer: grupa nieznana, czasownik posiłkowy nieznany, przechodniość nieznana.");
}

TEST(spoken_verb, says_of_a_pronominal_verb_that_it_is_neither) {
  EXPECT_EQ(spokenVerb("se laver", labels("pierwsza", "nie", "nie", "être")),
            "se laver: grupa pierwsza, czasownik posiłkowy être, ani przechodni, ani "
            "nieprzechodni.");
}

}  // namespace
}  // namespace odmiennik::app
