// SPDX-License-Identifier: GPL-3.0-or-later
// Deleting user verbs.
#include <gtest/gtest.h>

#include "dictionary/user_verbs.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

using odmiennik::testing::lineOf;
using odmiennik::testing::linesOf;
using odmiennik::testing::ProgramFolder;
using odmiennik::testing::RecordedMessages;
using Texts = std::vector<std::string>;

class UserVerbsDelete : public ::testing::Test {
 protected:
  UserVerbsFile open(std::int32_t count) { return {folder_.prefix(), count, messages_}; }
  void writeVerbs(std::string_view content) { folder_.write("Czasowniki.dat", content); }
  std::string verbs() { return folder_.read("Czasowniki.dat"); }

  ProgramFolder folder_;
  RecordedMessages messages_;
};

TEST_F(UserVerbsDelete, removes_the_verb_and_leaves_the_previous_content_behind) {
  const std::string before = linesOf({"aimer", "finir", "rendre"});
  writeVerbs(before);
  UserVerbsFile verbs = open(3);
  EXPECT_EQ(verbs.remove("finir"), DeleteResult::deleted);
  EXPECT_EQ(verbs.count(), 2);
  EXPECT_EQ(this->verbs(), linesOf({"aimer", "rendre"}));
  EXPECT_EQ(folder_.read("Czas.dat"), before);
  EXPECT_EQ(folder_.names(), (Texts{"Czas.dat", "Czasowniki.dat"}));
}

TEST_F(UserVerbsDelete, a_verb_that_occurs_twice_loses_both_lines_and_lowers_the_count_once) {
  writeVerbs(linesOf({"aimer", "finir", "aimer"}));
  UserVerbsFile verbs = open(3);
  EXPECT_EQ(verbs.remove("aimer"), DeleteResult::deleted);
  EXPECT_EQ(verbs.count(), 2);
  EXPECT_EQ(this->verbs(), lineOf("finir"));
}

TEST_F(UserVerbsDelete, goes_by_the_files_end_whatever_the_count) {
  for (const std::int32_t count : {0, 1, 2, 3, 7}) {
    writeVerbs(linesOf({"aimer", "finir", "rendre"}));
    UserVerbsFile verbs = open(count);
    EXPECT_EQ(verbs.remove("rendre"), DeleteResult::deleted);
    EXPECT_EQ(this->verbs(), linesOf({"aimer", "finir"}));
    EXPECT_EQ(verbs.count(), std::max(count - 1, 0));
    EXPECT_FALSE(folder_.has("Czasowniki.bak"));
  }
}

TEST_F(UserVerbsDelete, of_the_last_verb_leaves_an_empty_file) {
  writeVerbs(lineOf("aimer"));
  EXPECT_EQ(open(1).remove("aimer"), DeleteResult::deleted);
  EXPECT_EQ(verbs(), "");
}

TEST_F(UserVerbsDelete, that_finds_no_record_changes_nothing) {
  const std::string before = "\"quoted\"\n" + lineOf("aimer");
  writeVerbs(before);
  folder_.write("Czas.dat", "older");
  UserVerbsFile verbs = open(2);
  EXPECT_EQ(verbs.remove("Aimer"), DeleteResult::notFound);
  EXPECT_EQ(verbs.count(), 2);
  EXPECT_EQ(this->verbs(), before);
  EXPECT_EQ(folder_.read("Czas.dat"), "older");
}

TEST_F(UserVerbsDelete, without_a_file_finds_nothing) {
  UserVerbsFile verbs = open(1);
  EXPECT_EQ(verbs.remove("aimer"), DeleteResult::notFound);
  EXPECT_EQ(folder_.names(), Texts{});
  EXPECT_EQ(messages_.texts, Texts{});
}

TEST_F(UserVerbsDelete, replaces_the_previous_content_of_an_earlier_delete) {
  writeVerbs(linesOf({"aimer", "finir", "rendre"}));
  UserVerbsFile verbs = open(3);
  verbs.remove("aimer");
  verbs.remove("finir");
  EXPECT_EQ(folder_.read("Czas.dat"), linesOf({"finir", "rendre"}));
  EXPECT_EQ(this->verbs(), lineOf("rendre"));
}

TEST_F(UserVerbsDelete, copies_damaged_lines_byte_for_byte) {
  writeVerbs("rubbish\n" + linesOf({"aimer", "finir"}) + "more rubbish");
  EXPECT_EQ(open(4).remove("aimer"), DeleteResult::deleted);
  EXPECT_EQ(verbs(), "rubbish\n" + lineOf("finir") + "more rubbish");
  EXPECT_EQ(messages_.texts, Texts{"Plik czasowników użytkownika jest uszkodzony (czasownik 1)."});
}

TEST_F(UserVerbsDelete, fails_before_anything_changes_when_the_previous_content_has_no_place) {
  const std::string before = linesOf({"aimer", "finir"});
  writeVerbs(before);
  fs::create_directories(folder_.path() / "Czas.dat" / "full");
  UserVerbsFile verbs = open(2);
  EXPECT_EQ(verbs.remove("aimer"), DeleteResult::failed);
  EXPECT_EQ(verbs.count(), 2);
  EXPECT_EQ(this->verbs(), before);
  EXPECT_EQ(messages_.texts, Texts{"Nie można zapisać pliku czasowników użytkownika."});
  EXPECT_EQ(folder_.names(), (Texts{"Czas.dat", "Czasowniki.dat"}));
}

}  // namespace
}  // namespace odmiennik::dictionary
