// SPDX-License-Identifier: GPL-3.0-or-later
// The sentence of statistics.
#include "app/logic/statistics.h"

#include <gtest/gtest.h>

namespace odmiennik::app {
namespace {

TEST(statistics, counts_verbs_and_runs_in_polish) {
  EXPECT_EQ(statisticsSentence(0, 1), "Statystyka: odmieniono 0 czasowników po 1 uruchomieniu.");
  EXPECT_EQ(statisticsSentence(1, 1), "Statystyka: odmieniono 1 czasownik po 1 uruchomieniu.");
  EXPECT_EQ(statisticsSentence(3, 2), "Statystyka: odmieniono 3 czasowniki po 2 uruchomieniach.");
  EXPECT_EQ(statisticsSentence(12, 5), "Statystyka: odmieniono 12 czasowniki po 5 uruchomieniach.");
  EXPECT_EQ(statisticsSentence(25, 11),
            "Statystyka: odmieniono 25 czasowników po 11 uruchomieniach.");
  EXPECT_EQ(statisticsSentence(101, 3),
            "Statystyka: odmieniono 101 czasowników po 3 uruchomieniach.");
}

TEST(statistics, deliberate_the_teens_are_counted_like_their_last_digit) {
  for (const int count : {12, 13, 14, 112, 113, 114, 1012, 2, 24, 122})
    EXPECT_NE(statisticsSentence(count, 1).find(" czasowniki po"), std::string::npos) << count;
}

TEST(statistics, only_one_verb_is_one) {
  for (const int count : {0, 5, 9, 10, 11, 15, 21, 101, 1000001})
    EXPECT_NE(statisticsSentence(count, 1).find(" czasowników po"), std::string::npos) << count;
}

TEST(statistics, full_counters_are_told_in_full) {
  EXPECT_EQ(statisticsSentence(2147483647, 2147483647),
            "Statystyka: odmieniono 2147483647 czasowników po 2147483647 uruchomieniach.");
}

TEST(statistics, the_sign_takes_the_place_of_the_blank) {
  EXPECT_EQ(statisticsSentence(-2, 0), "Statystyka: odmieniono-2 czasowniki po 0 uruchomieniach.");
}

}  // namespace
}  // namespace odmiennik::app
