// SPDX-License-Identifier: GPL-3.0-or-later
// Today's norm, as a user of the command meets it.
#include <gtest/gtest.h>

#include "process.h"

namespace odmiennik::end_to_end {
namespace {

constexpr const char* kHead = "infinitive\tslot\tmood\ttense\tperson\tform\tnorm";

TEST(norm, is_given_where_it_is_asked_for_and_nowhere_else) {
  EXPECT_TRUE(holds(run({"lire"}).out, "il lir "));
  EXPECT_TRUE(holds(run({"--norm", "lire"}).out, "il lit "));
  EXPECT_TRUE(holds(run({"--norm", "lire"}).out, "ils auraient lu"));
}

TEST(norm, holds_in_every_format) {
  EXPECT_TRUE(holds(run({"--norm", "--format", "json", "lire"}).out, "\"lit\""));
  EXPECT_TRUE(holds(run({"--norm", "--format", "tsv", "lire"}).out, "\til\til\tlit\til lit\n"));
}

TEST(norm, holds_for_every_line_of_standard_input) {
  const auto lines = linesOf(run({"--norm", "--format", "json"}, "lire\nfinir\nélire\n").out);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_TRUE(holds(lines[0], "\"lit\""));
  EXPECT_TRUE(holds(lines[2], "\"élit\""));
}

TEST(norm, the_other_auxiliary_is_in_the_norm_too) {
  EXPECT_TRUE(holds(run({"--norm", "--auxiliary", "avoir", "monter"}).out, "auraient monté"));
}

TEST(departures, of_a_verb_are_listed_with_their_norm) {
  const Result result = run({"--departures", "lire"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(linesOf(result.out),
            (std::vector<std::string>{
                kHead, "lire\t2\tIndicatif\tprésent\til\til lir\til lit",
                "lire\t83\tConditionnel\tpassé 1re forme\tils\tils aurainet lu\tils auraient lu"}));
}

TEST(departures, of_a_verb_without_any_are_the_head_alone) {
  EXPECT_EQ(linesOf(run({"--departures", "pleuvoir"}).out), (std::vector<std::string>{kHead}));
}

TEST(departures, without_a_verb_are_those_of_the_whole_index) {
  const Result result = run({"--departures"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_GT(linesOf(result.out).size(), 9000U);
  EXPECT_TRUE(holds(result.out, "\nzozoter\t83\t"));
}

TEST(departures, a_refused_verb_has_its_message_and_its_exit_code) {
  const Result result = run({"--departures", "x"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(linesOf(result.out), (std::vector<std::string>{kHead}));
  EXPECT_TRUE(holds(result.err, "odmien: „x”: "));
}

}  // namespace
}  // namespace odmiennik::end_to_end
