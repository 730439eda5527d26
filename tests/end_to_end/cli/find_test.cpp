// SPDX-License-Identifier: GPL-3.0-or-later
// Forms whose verbs are asked for.
#include <gtest/gtest.h>

#include "process.h"
#include "verb_folder.h"

namespace odmiennik::end_to_end {
namespace {

using Lines = std::vector<std::string>;

TEST(find, tells_what_a_form_may_be) {
  const Result result = run({"--find", "fus", "eut"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(
      linesOf(result.out),
      (Lines{"fus", "  je fus                      être              Indicatif passé simple, je",
             "  tu fus                      être              Indicatif passé simple, tu", "eut",
             "  il eut                      avoir             Indicatif passé simple, il",
             "  z innymi akcentami:",
             "  qu'il eût                   avoir             Subjonctif imparfait, il"}));
}

TEST(find, answers_as_tab_separated_values) {
  const Result result = run({"--find", "--format", "tsv", "mangées", "aurainet"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(
      linesOf(result.out),
      (Lines{"typed\tphrase\tinfinitive\tslot\tmood\ttense\tperson\tagreement\tvariety\tmatch",
             "mangées\tmangées\tmanger\t99\tParticipe\tpassé\t\tfp\tboth\texact",
             "aurainet\tils aurainet\tavoir\t77\tConditionnel\tprésent\tils\t\tsystem\texact"}));
}

TEST(find, answers_each_line_of_input_with_one_json_object) {
  const Result result = run({"--find", "--format=json"}, "parlâmes\nxq\n");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(
      linesOf(result.out),
      (Lines{R"({"typed":"parlâmes","readings":[{"phrase":"nous parlâmes","form":"parlâmes",)"
             R"("infinitive":"parler","slot":15,"mood":"Indicatif","tense":"passé simple",)"
             R"("person":"nous","agreement":"","variety":"both","match":"exact","own":false}]})",
             R"({"typed":"xq","readings":[]})"}));
  EXPECT_EQ(result.err, "odmien: wiersz 2: „xq”: nie znaleziono takiej formy.\n");
}

TEST(find, says_when_it_only_guesses) {
  const Result result = run({"--find", "manjeons"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(linesOf(result.out)[1], "  może:");
  EXPECT_EQ(result.err, "odmien: argument 1: „manjeons”: nie znaleziono takiej formy.\n");
}

TEST(find, reads_phrases_with_the_apostrophe_of_typography_and_loose_accents) {
  const Result result = run({"--find", "--format", "tsv", "qu’il eût fini", "e\u0301te\u0301"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_TRUE(linesOf(result.out)[1].starts_with("qu’il eût fini\tqu'il eût fini\tfinir\t"));
  EXPECT_EQ(linesOf(result.out).size(), 3U);
}

TEST(find, passes_blank_lines_over_but_in_json) {
  EXPECT_EQ(run({"--find"}, "\n  \n").out, "");
  EXPECT_EQ(run({"--find"}, "\n").exitCode, 0);
  EXPECT_EQ(linesOf(run({"--find", "--format", "json"}, "\n\n").out).size(), 2U);
}

TEST(find, complains_of_what_cannot_be_read_and_goes_on) {
  const Result result = run({"--find"}, "łapać\nfus\n");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.err, "odmien: wiersz 1: znaku „ł” (U+0142) nie ma w zestawie Windows-1252.\n");
  EXPECT_EQ(linesOf(result.out).front(), "fus");
}

TEST(find, shows_what_would_drive_a_terminal) {
  EXPECT_EQ(run({"--find", "\x1B[31m"}).err.find('\x1B'), std::string::npos);
}

TEST(find, knows_the_users_own_verbs) {
  VerbFolder folder;
  folder.write("Czasowniki.dat", record("zzbloguer", 1));
  folder.writeCount(1);
  const Result result = run({"--folder", folder.path(), "--find", "--format", "tsv", "zzbloguer0"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(linesOf(result.out)[1],
            "zzbloguer0\tje zzbloguer0\tzzbloguer\t0\tIndicatif\tprésent\tje\t\tboth\texact");
}

TEST(find, tells_of_a_damaged_file_of_the_users_verbs) {
  VerbFolder folder;
  folder.write("Czasowniki.dat", "no record\r\n");
  folder.writeCount(1);
  const Result result = run({"--folder", folder.path(), "--find", "fus"});
  EXPECT_EQ(result.exitCode, 3);
  EXPECT_NE(result.err.find("uszkodzony (czasownik 1)"), std::string::npos);
  EXPECT_EQ(linesOf(result.out).front(), "fus");
}

TEST(find, goes_with_format_and_folder_only) {
  for (const Arguments& others : {Arguments{"--norm"},
                                  {"--edit"},
                                  {"--departures"},
                                  {"--auxiliary", "avoir"},
                                  {"--list", "a"}}) {
    Arguments arguments{"--find"};
    arguments.insert(arguments.end(), others.begin(), others.end());
    const Result result = run(arguments);
    EXPECT_EQ(result.exitCode, 2) << others.front();
    EXPECT_NE(result.err.find("nie łączy się"), std::string::npos) << result.err;
  }
}

}  // namespace
}  // namespace odmiennik::end_to_end
