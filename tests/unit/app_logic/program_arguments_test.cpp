// SPDX-License-Identifier: GPL-3.0-or-later
// What the program's command line says.
#include "app/logic/program_arguments.h"

#include <gtest/gtest.h>

#include <vector>

namespace odmiennik::app {
namespace {

ProgramArguments read(const std::vector<Utf8Text>& arguments) {
  return programArguments(arguments, "1.2.3");
}

// Expects the arguments to be refused with a sentence that holds `reason`, and with the usage.
void expectRefused(const std::vector<Utf8Text>& arguments, Utf8View reason) {
  const ProgramArguments refused = read(arguments);
  EXPECT_TRUE(refused.isRefused);
  EXPECT_TRUE(refused.told.starts_with("odmiennik: ")) << refused.told;
  EXPECT_NE(refused.told.find(reason), std::string::npos) << refused.told;
  EXPECT_NE(refused.told.find("\nUżycie: odmiennik "), std::string::npos) << refused.told;
}

TEST(program_arguments, without_any_the_window_opens_as_always) {
  const ProgramArguments none = read({});
  EXPECT_TRUE(none.told.empty());
  EXPECT_FALSE(none.folder || none.verb || none.isRefused);
}

TEST(program_arguments, a_word_is_the_verb_to_conjugate) {
  EXPECT_EQ(read({"aimer"}).verb, "aimer");
  EXPECT_EQ(read({"se laver"}).verb, "se laver");
  EXPECT_EQ(read({"être"}).verb, "\xEAtre");
  EXPECT_EQ(read({"e\u0302tre"}).verb, "\xEAtre");
}

TEST(program_arguments, more_than_one_word_is_refused) {
  expectRefused({"aimer", "finir"}, "podaj jeden czasownik");
  expectRefused({"se", "laver"}, "podaj jeden czasownik");
}

TEST(program_arguments, a_word_with_foreign_letters_or_bytes_is_refused) {
  expectRefused({"łapać"}, "„łapać”");
  expectRefused({"\xFF\x1b[31m"}, "„\\xFF\\x1B[31m”");
}

TEST(program_arguments, the_folder_comes_behind_a_blank_or_an_equals_sign) {
  EXPECT_EQ(read({"--folder", "/a=b"}).folder, "/a=b");
  EXPECT_EQ(read({"--folder=/a=b"}).folder, "/a=b");
}

TEST(program_arguments, the_folder_is_taken_byte_for_byte_but_for_its_end) {
  EXPECT_EQ(read({"--folder", "/a/\xFF//"}).folder, "/a/\xFF");
}

TEST(program_arguments, a_folder_and_a_verb_go_together_in_any_order) {
  for (const auto& arguments : {std::vector<Utf8Text>{"--folder", "/a", "aimer"},
                                std::vector<Utf8Text>{"aimer", "--folder", "/a"}}) {
    EXPECT_EQ(read(arguments).folder, "/a");
    EXPECT_EQ(read(arguments).verb, "aimer");
  }
}

TEST(program_arguments, a_folder_without_a_name_is_refused) {
  expectRefused({"--folder"}, "„--folder” wymaga");
  expectRefused({"--folder", ""}, "„--folder” wymaga");
  expectRefused({"--folder="}, "„--folder” wymaga");
}

TEST(program_arguments, an_unknown_option_is_refused_and_shown_not_obeyed) {
  expectRefused({"--nie\x1b[31m\u202Ema"}, "nieznana opcja „--nie\\x1B[31m\\u202Ema”");
  expectRefused({"-x"}, "nieznana opcja „-x”");
  expectRefused({"--folders=/a"}, "nieznana opcja");
}

TEST(program_arguments, help_and_version_are_told) {
  for (const char* help : {"--help", "-h"}) {
    EXPECT_TRUE(read({help}).told.starts_with("Użycie: odmiennik "));
    EXPECT_FALSE(read({help}).isRefused);
  }
  for (const char* version : {"--version", "-v"})
    EXPECT_EQ(read({version}).told, "Odmiennik 1.2.3\n");
}

TEST(program_arguments, behind_two_dashes_stands_a_verb) {
  EXPECT_EQ(read({"--", "--help"}).verb, "--help");
}

TEST(program_arguments, options_of_qt_are_passed_over_with_their_values) {
  const ProgramArguments given =
      read({"-platform", "offscreen", "--style=fusion", "-reverse", "aimer", "-title", "x"});
  EXPECT_EQ(given.verb, "aimer");
  EXPECT_FALSE(given.isRefused);
}

}  // namespace
}  // namespace odmiennik::app
