// SPDX-License-Identifier: GPL-3.0-or-later
// How forms came to be.
#include <gtest/gtest.h>

#include "process.h"
#include "verb_folder.h"

namespace odmiennik::end_to_end {
namespace {

using Lines = std::vector<std::string>;

// The lines of an answer that hold `text`.
std::size_t countOf(const Result& result, const std::string& text) {
  std::size_t count = 0;
  for (const std::string& line : linesOf(result.out))
    if (line.find(text) != std::string::npos) ++count;
  return count;
}

TEST(explain, tells_how_a_form_came_to_be) {
  const Result result = run({"--explain", "mangeons"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(
      linesOf(result.out),
      (Lines{
          "mangeons", "  manger, Indicatif présent, nous",
          "    nous mangeons: reguła -ger (wzór: manger); temat mang-, e przed o, końcówka -ons.",
          "  manger, Impératif présent, nous",
          "    mangeons: reguła -ger (wzór: manger); od formy „nous mangeons” (présent)."}));
}

TEST(explain, tells_of_an_infinitive_how_the_verb_is_conjugated) {
  const Result result = run({"--explain", "jeter"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(countOf(result, "reguła -eter (wzór: jeter)"), 1U);
  EXPECT_EQ(countOf(result, "czasownik posiłkowy           avoir"), 1U);
  EXPECT_EQ(countOf(result, "je jette: temat jet-, podwójne t przed niemą końcówką"), 1U);
  EXPECT_EQ(countOf(result, "Participe passé"), 2U);
}

TEST(explain, guesses_as_find_does_where_nothing_is_found) {
  const Result result = run({"--explain", "manjeons"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, run({"--find", "manjeons"}).out);
  EXPECT_EQ(result.err, "odmien: argument 1: „manjeons”: nie znaleziono takiej formy.\n");
}

TEST(explain, takes_the_auxiliary_from_the_form) {
  EXPECT_EQ(countOf(run({"--explain", "je suis tombé"}), "présent czasownika être: suis"), 1U);
  EXPECT_EQ(countOf(run({"--explain", "j'ai tombé"}), "présent czasownika avoir: ai"), 1U);
}

TEST(explain, tells_what_the_norm_has_instead) {
  const Result result = run({"--explain", "--format", "tsv", "aurainet"});
  ASSERT_EQ(linesOf(result.out).size(), 2U);
  EXPECT_TRUE(linesOf(result.out)[1].ends_with(
      "dzisiejsza norma: ils auraient: poprawka normy w tym czasowniku; forma podana w całości w "
      "regule"))
      << linesOf(result.out)[1];
}

TEST(explain, explains_the_norm_where_it_is_asked_for) {
  EXPECT_EQ(countOf(run({"--explain", "--norm", "il lit"}), "poprawka normy"), 1U);
  EXPECT_EQ(countOf(run({"--explain", "il lit"}), "poprawka normy"), 1U);  // it has no other
}

TEST(explain, answers_each_line_of_input_with_one_json_object) {
  const Result result = run({"--explain", "--format=json"}, "vas\nxq\n");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(linesOf(result.out),
            (Lines{R"({"typed":"vas","verbs":[{"infinitive":"aller",)"
                   R"("source":"czasownik z wbudowanej tabeli","auxiliary":"être","match":"exact",)"
                   R"("whole":false,"forms":[{"slot":1,"mood":"Indicatif","tense":"présent",)"
                   R"("person":"tu","phrase":"tu vas","remarks":["forma zapisana w całości"],)"
                   R"("norm":null}]}]})",
                   R"({"typed":"xq","verbs":[]})"}));
}

TEST(explain, knows_a_verb_that_only_a_rule_conjugates) {
  const Result result = run({"--explain", "zigzouiller"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(countOf(result, "odmiana regularna -er (wzór: parler)"), 1U);
}

TEST(explain, refuses_options_that_it_has_no_use_for) {
  for (const char* option : {"--find", "--edit", "--departures", "--strings"})
    EXPECT_EQ(run({"--explain", option, "va"}).exitCode, 2) << option;
  EXPECT_EQ(run({"--explain", "--format", "html", "va"}).exitCode, 2);
}

}  // namespace
}  // namespace odmiennik::end_to_end
