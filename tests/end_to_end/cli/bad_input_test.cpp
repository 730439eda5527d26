// SPDX-License-Identifier: GPL-3.0-or-later
// Bad input: each line has its defined answer or a clear error, and the next line is still served.
#include <gtest/gtest.h>

#include "process.h"

namespace odmiennik::end_to_end {
namespace {

constexpr const char* kNotConjugable =
    "Podany czasownik nie został znaleziony i nie było możliwe odmienienie go regularnie.";
constexpr const char* kConjugatedRegularly =
    "Podany czasownik nie został znaleziony, ale został odmieniony regularnie.";

struct Answered {
  int exitCode;
  std::string json;  // of the bad line
  std::string err;
};

// Asks `line` and a good verb behind it, and expects the good one to be answered.
Answered answerOf(const std::string& line) {
  const Result result = run({"--format", "json"}, line + "\nparler\n");
  const auto lines = linesOf(result.out);
  EXPECT_EQ(lines.size(), 2U);
  if (lines.size() != 2) return {result.exitCode, {}, result.err};
  EXPECT_TRUE(lines[1].starts_with("{\"typed\":\"parler\",\"slots\":[\"parle\",\"parles\","));
  return {result.exitCode, lines[0], result.err};
}

void expectRefused(const std::string& line) {
  const Answered answered = answerOf(line);
  EXPECT_EQ(answered.exitCode, 1);
  EXPECT_TRUE(holds(answered.json, std::string("\"messages\":[\"") + kNotConjugable + "\"]"));
  EXPECT_TRUE(holds(answered.json, "\"source\":\"none\",\"model\":\"\"}"));
  EXPECT_TRUE(holds(answered.err, kNotConjugable));
}

// An error that belongs to the command alone: the window's boxes take no such text.
void expectError(const std::string& line, const std::string& sentence) {
  const Answered answered = answerOf(line);
  EXPECT_EQ(answered.exitCode, 1);
  EXPECT_TRUE(holds(answered.json, "\"boxes\":[\" -- \",\" -- \","));
  EXPECT_TRUE(holds(answered.json, "\"messages\":[],"));
  EXPECT_EQ(answered.err, "odmien: wiersz 1: " + sentence + "\n");
}

TEST(bad_input, an_empty_line_is_refused) { expectRefused(""); }
TEST(bad_input, blanks_alone_are_refused) { expectRefused("   "); }
TEST(bad_input, one_letter_is_refused) { expectRefused("a"); }
TEST(bad_input, se_alone_is_refused) { expectRefused("se"); }
TEST(bad_input, s_apostrophe_alone_is_refused) { expectRefused("s'"); }
TEST(bad_input, a_tab_alone_is_an_empty_line_with_an_empty_record) { expectRefused("\t"); }
TEST(bad_input, control_characters_alone_are_refused) {
  expectRefused(std::string("\x01\x7F\0", 3));
}

TEST(bad_input, ten_thousand_letters_are_a_verb) {
  const std::string stem(9998, 'a');
  const Answered answered = answerOf(stem + "er");
  EXPECT_EQ(answered.exitCode, 0);
  EXPECT_TRUE(holds(answered.json, "\"" + stem + "ons\""));
  EXPECT_TRUE(holds(answered.err, kConjugatedRegularly));
  EXPECT_LT(answered.err.size(), 300U);
}

TEST(bad_input, ten_million_letters_are_an_error) {
  expectError(std::string(10'000'000, 'a'), "tekst jest dłuższy niż 65536 bajtów.");
}

TEST(bad_input, letters_outside_windows_1252_are_an_error) {
  expectError("łapać", "znaku „ł” (U+0142) nie ma w zestawie Windows-1252.");
  expectError("ça 😀", "znaku „😀” (U+1F600) nie ma w zestawie Windows-1252.");
}

TEST(bad_input, bytes_that_are_no_utf8_are_an_error) {
  expectError("\xE9tre", "bajt 0xE9 na pozycji 1 nie należy do tekstu UTF-8.");
  expectError("parl\xC0\x80", "bajt 0xC0 na pozycji 5 nie należy do tekstu UTF-8.");
}

TEST(bad_input, typed_text_shows_bad_bytes_as_replacement_characters) {
  EXPECT_TRUE(answerOf("a\xFF\xFE").json.starts_with("{\"typed\":\"a\uFFFD\uFFFD\","));
}

TEST(bad_input, capital_accented_letters_are_read_as_small_ones) {
  const Answered answered = answerOf("ÊTRE");
  EXPECT_EQ(answered.exitCode, 0);
  EXPECT_TRUE(holds(answered.json, "\"slots\":[\"suis\",\"es\",\"est\","));
  EXPECT_TRUE(holds(answered.json, "\"source\":\"builtin\""));
}

TEST(bad_input, letters_with_combining_accents_are_letters_on_input_and_as_arguments) {
  const Answered answered = answerOf("e\u0302tre");
  EXPECT_EQ(answered.exitCode, 0);
  EXPECT_TRUE(holds(answered.json, "\"slots\":[\"suis\",\"es\",\"est\","));
  EXPECT_TRUE(run({"--format", "tsv", "e\u0302tre"}).out.find("suis") != std::string::npos);
  EXPECT_EQ(run({"--complete", "e\u0302tr"}).out, "être\n");
}

TEST(bad_input, a_byte_order_mark_before_the_first_verb_is_passed_over) {
  EXPECT_EQ(run({"--format", "json"}, "\uFEFFaller\n").out,
            run({"--format", "json"}, "aller\n").out);
}

TEST(bad_input, several_verbs_in_one_line_are_one_unknown_verb) {
  const Answered answered = answerOf("parler manger");
  EXPECT_EQ(answered.exitCode, 0);
  EXPECT_TRUE(holds(answered.json, "\"slots\":[\"parler mange\","));
  EXPECT_TRUE(holds(answered.err, kConjugatedRegularly));
}

TEST(bad_input, control_characters_are_escaped_in_json_and_hidden_from_terminals) {
  const Answered answered = answerOf("\x1b[31mparler");
  EXPECT_TRUE(holds(answered.json, "\"slots\":[\"\\u001b[31mparle\","));
  EXPECT_FALSE(holds(answered.err, "\x1b"));
}

TEST(bad_input, a_refused_option_is_shown_and_not_obeyed) {
  const std::string attack = "--\x1b[31m\x9B\u009B\u202E\nodmien: OK";
  for (const Arguments& arguments :
       {Arguments{attack}, Arguments{"--format", attack}, Arguments{"--auxiliary", attack},
        Arguments{"--help", attack}}) {
    const std::string err = run(arguments).err;
    EXPECT_TRUE(holds(err, "--\\x1B[31m\\x9B\\u009B\\u202E\\x0Aodmien: OK")) << err;
    EXPECT_EQ(linesOf(err).size(), 1U) << err;
  }
}

TEST(bad_input, as_an_argument_it_is_named_by_its_number) {
  EXPECT_EQ(run({"parler", "łapać"}).err,
            "odmien: argument 2: znaku „ł” (U+0142) nie ma w zestawie Windows-1252.\n");
}

}  // namespace
}  // namespace odmiennik::end_to_end
