// SPDX-License-Identifier: GPL-3.0-or-later
// The tools that prepare the data of built-in verbs.
#include "dictionary/developer_tools.h"

#include <gtest/gtest.h>

#include "tests/support/test_program.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

using odmiennik::testing::french;
using odmiennik::testing::lineOf;
using odmiennik::testing::linesOf;
using odmiennik::testing::ProgramFolder;
using odmiennik::testing::verb;
using Texts = std::vector<std::string>;

class ResourceScript : public ::testing::Test {
 protected:
  bool build(std::int32_t count) {
    return buildResourceScript(folder_.prefix(), count, folder_.path() / "odmiana.rc");
  }
  std::string script() { return folder_.read("odmiana.rc"); }

  ProgramFolder folder_;
};

TEST_F(ResourceScript, begins_with_the_count_and_the_infinitives_in_the_second_print_zone) {
  folder_.write("Czasowniki.dat", linesOf({"aller", "être", "avoir"}));
  ASSERT_TRUE(build(2));
  EXPECT_TRUE(
      script().starts_with(french("3000          \"2\"\r\n"
                                  "3001          \"aller\"\r\n"
                                  "3002          \"être\"\r\n"
                                  "4000          \"@\"\r\n")));
}

TEST_F(ResourceScript, has_102_entries_a_verb) {
  UserVerbRecord second = verb("aller", {{0, "vais"}, {100, "*"}});
  second.auxiliary = engine::kEtre;
  folder_.write("Czasowniki.dat", lineOf("avoir") + recordLine(second));
  ASSERT_TRUE(build(2));
  const std::string text = script();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1 + 2 + 2 * 102);
  for (const char* line :
       {"4096          \"avoir\"\r\n", "4101          \"1\"\r\n4102          \"vais\"\r\n",
        "4103          \"@\"\r\n", "4202          \"*\"\r\n"})
    EXPECT_NE(text.find(line), std::string::npos) << line;
  EXPECT_TRUE(text.ends_with("4203          \"0\"\r\n"));
}

TEST_F(ResourceScript, is_not_written_when_records_are_missing_or_damaged) {
  EXPECT_FALSE(build(1));
  folder_.write("Czasowniki.dat", lineOf("aller"));
  EXPECT_FALSE(build(2));
  folder_.write("Czasowniki.dat", "rubbish\r\n");
  EXPECT_FALSE(build(1));
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

#ifndef _WIN32
TEST_F(ResourceScript, goes_to_the_program_folder) {
  EXPECT_EQ(resourceScriptPath(folder_.prefix()), folder_.path() / "odmiana.rc");
}
#endif

class JoinedTexts : public ::testing::Test {
 protected:
  JoinedTexts() { fs::create_directory(folder_.path() / "teksty"); }

  ProgramFolder folder_;
};

TEST_F(JoinedTexts, hold_the_even_numbers_in_order) {
  folder_.write("teksty/196.txt", "first");
  folder_.write("teksty/197.txt", "odd");
  folder_.write("teksty/198.TXT", "\xE9t\xE9\n\nend\r");
  folder_.write("teksty/252.txt", "last\r\n");
  folder_.write("teksty/194.txt", "before");
  folder_.write("teksty/254.txt", "behind");
  ASSERT_TRUE(joinTextFiles(folder_.prefix()));
  EXPECT_EQ(folder_.read("teksty/Połącz.txt"), "first\r\n\xE9t\xE9\r\n\r\nend\r\nlast\r\n");
}

TEST_F(JoinedTexts, are_empty_without_any_text) {
  folder_.write("teksty/Połącz.txt", "from last time");
  ASSERT_TRUE(joinTextFiles(folder_.prefix()));
  EXPECT_EQ(folder_.read("teksty/Połącz.txt"), "");
}

TEST_F(JoinedTexts, need_their_folder) {
  fs::remove(folder_.path() / "teksty");
  EXPECT_FALSE(joinTextFiles(folder_.prefix()));
  EXPECT_EQ(folder_.names(), Texts{});
}

TEST_F(JoinedTexts, are_not_touched_when_a_text_cannot_be_read) {
  folder_.write("teksty/Połącz.txt", "from last time");
  fs::create_directory(folder_.path() / "teksty" / "200.txt");
  EXPECT_FALSE(joinTextFiles(folder_.prefix()));
  EXPECT_EQ(folder_.read("teksty/Połącz.txt"), "from last time");
}

TEST_F(JoinedTexts, keep_a_very_long_line_whole) {
  for (const std::size_t length : {17 * 65'536, 3'000'000}) {
    const std::string line(length, 'x');
    folder_.write("teksty/200.txt", line);
    ASSERT_TRUE(joinTextFiles(folder_.prefix()));
    EXPECT_TRUE(folder_.read("teksty/Połącz.txt") == line + "\r\n") << length;
  }
}

}  // namespace
}  // namespace odmiennik::dictionary
