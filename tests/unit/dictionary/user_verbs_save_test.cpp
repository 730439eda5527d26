// SPDX-License-Identifier: GPL-3.0-or-later
// Saving user verbs.
#include <gtest/gtest.h>

#include "dictionary/user_verbs.h"
#include "tests/support/test_program.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

using odmiennik::testing::french;
using odmiennik::testing::lineOf;
using odmiennik::testing::linesOf;
using odmiennik::testing::ProgramFolder;
using odmiennik::testing::RecordedMessages;
using odmiennik::testing::verb;
using Texts = std::vector<std::string>;

class UserVerbsSave : public ::testing::Test {
 protected:
  UserVerbsFile open(std::int32_t count) { return {folder_.prefix(), count, messages_}; }
  void writeVerbs(std::string_view content) { folder_.write("Czasowniki.dat", content); }
  std::string verbs() { return folder_.read("Czasowniki.dat"); }

  ProgramFolder folder_;
  RecordedMessages messages_;
};

TEST_F(UserVerbsSave, creates_the_file) {
  UserVerbsFile verbs = open(0);
  EXPECT_EQ(verbs.save(verb("aimer")), SaveResult::appended);
  EXPECT_EQ(verbs.count(), 1);
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
  EXPECT_EQ(this->verbs(), lineOf("aimer"));
}

TEST_F(UserVerbsSave, appends_a_new_verb_and_counts_it) {
  writeVerbs(linesOf({"aimer", "finir"}));
  UserVerbsFile verbs = open(2);
  EXPECT_EQ(verbs.save(verb("rendre")), SaveResult::appended);
  EXPECT_EQ(verbs.count(), 3);
  EXPECT_EQ(this->verbs(), linesOf({"aimer", "finir", "rendre"}));
}

TEST_F(UserVerbsSave, replaces_a_known_verb_in_place) {
  writeVerbs(linesOf({"aimer", "finir", "rendre"}));
  UserVerbsFile verbs = open(3);
  EXPECT_EQ(verbs.save(verb("finir", {{0, "finis"}})), SaveResult::replaced);
  EXPECT_EQ(verbs.count(), 3);
  EXPECT_EQ(this->verbs(), lineOf("aimer") + lineOf("finir", {{0, "finis"}}) + lineOf("rendre"));
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

TEST_F(UserVerbsSave, twice_without_change_gives_the_same_file_and_count) {
  UserVerbsFile verbs = open(0);
  verbs.save(verb("aimer"));
  const std::string once = this->verbs();
  EXPECT_EQ(verbs.save(verb("aimer")), SaveResult::replaced);
  EXPECT_EQ(this->verbs(), once);
  EXPECT_EQ(verbs.count(), 1);
}

TEST_F(UserVerbsSave, replaces_every_record_of_the_verb) {
  writeVerbs(linesOf({"aimer", "finir", "aimer"}));
  open(3).save(verb("aimer", {{0, "aime"}}));
  const std::string aimer = lineOf("aimer", {{0, "aime"}});
  EXPECT_EQ(verbs(), aimer + lineOf("finir") + aimer);
}

TEST_F(UserVerbsSave, takes_infinitives_that_differ_by_capitals_for_one_verb) {
  writeVerbs(linesOf({"Aimer", "se laver"}));
  EXPECT_EQ(open(2).save(verb(" Aimer ")), SaveResult::replaced);
  EXPECT_EQ(open(2).save(verb("aimer")), SaveResult::replaced);
  EXPECT_EQ(verbs(), linesOf({"aimer", "se laver"}));
}

TEST_F(UserVerbsSave, takes_a_verb_with_and_without_prefix_for_two) {
  writeVerbs(linesOf({"se laver"}));
  EXPECT_EQ(open(1).save(verb("laver")), SaveResult::appended);
  EXPECT_EQ(verbs(), linesOf({"se laver", "laver"}));
}

// Written byte by byte, since the writer itself is what is tested.
std::string lineWith(std::string_view infinitive) {
  return std::string(96, ',') + french(infinitive) + std::string(5, ',') + " 1\r\n";
}

TEST_F(UserVerbsSave, writes_a_reflexive_prefix_in_lower_case_and_its_apostrophe_as_the_straight_one) {
  UserVerbsFile verbs = open(0);
  verbs.save(verb(" Se zyzer "));
  verbs.save(verb("S’Habiller"));
  EXPECT_EQ(this->verbs(), lineWith("se zyzer") + lineWith("s'Habiller"));
}

TEST_F(UserVerbsSave, however_the_prefix_is_typed_there_is_one_record) {
  writeVerbs(lineWith("Se zyzer"));
  UserVerbsFile verbs = open(1);
  for (const char* typed : {"se zyzer", "SE zyzer", "Se Zyzer", "se zyzer"})
    EXPECT_EQ(verbs.save(verb(typed)), SaveResult::replaced) << typed;
  EXPECT_EQ(this->verbs(), lineWith("se zyzer"));
  EXPECT_EQ(verbs.count(), 1);
}

TEST_F(UserVerbsSave, writes_copied_records_in_the_writers_format) {
  const std::string foreign = "\"a\" , b" + std::string(95, ',') + "finir" + std::string(5, ',');
  writeVerbs(foreign + "1\n");
  open(1).save(verb("aimer"));
  EXPECT_EQ(verbs(), lineOf("finir", {{0, "a"}, {1, "b"}}) + lineOf("aimer"));
}

TEST_F(UserVerbsSave, removes_the_previous_content_that_a_delete_left) {
  writeVerbs(lineOf("aimer"));
  folder_.write("CZAS.DAT", "old");
  open(1).save(verb("finir"));
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

TEST_F(UserVerbsSave, keeps_the_spelling_of_the_file_that_is_there) {
  folder_.write("czasowniki.DAT", lineOf("aimer"));
  open(1).save(verb("finir"));
  EXPECT_EQ(folder_.names(), Texts{"czasowniki.DAT"});
}

TEST_F(UserVerbsSave, with_a_count_too_small_drops_the_rest_and_keeps_the_file_as_it_was) {
  const std::string before = linesOf({"aimer", "finir", "rendre"});
  writeVerbs(before);
  UserVerbsFile verbs = open(2);
  EXPECT_EQ(verbs.save(verb("courir")), SaveResult::appended);
  EXPECT_EQ(verbs.count(), 3);
  EXPECT_EQ(this->verbs(), linesOf({"aimer", "finir", "courir"}));
  EXPECT_EQ(folder_.read("Czasowniki.bak"), before);
}

TEST_F(UserVerbsSave, with_count_zero_copies_no_old_record_and_keeps_the_file_as_it_was) {
  writeVerbs(linesOf({"aimer", "finir"}));
  UserVerbsFile verbs = open(0);
  EXPECT_EQ(verbs.save(verb("aimer")), SaveResult::appended);
  EXPECT_EQ(verbs.count(), 1);
  EXPECT_EQ(this->verbs(), lineOf("aimer"));
  EXPECT_EQ(folder_.read("Czasowniki.bak"), linesOf({"aimer", "finir"}));
}

TEST_F(UserVerbsSave, never_overwrites_an_earlier_copy) {
  writeVerbs(linesOf({"aimer", "finir"}));
  folder_.write("czasowniki.BAK", "first");
  folder_.write("Czasowniki.bak2", "second");
  open(1).save(verb("courir"));
  EXPECT_EQ(folder_.names(),
            (Texts{"Czasowniki.bak2", "Czasowniki.bak3", "Czasowniki.dat", "czasowniki.BAK"}));
  EXPECT_EQ(folder_.read("Czasowniki.bak3"), linesOf({"aimer", "finir"}));
}

TEST_F(UserVerbsSave, with_a_count_too_large_copies_what_there_is) {
  writeVerbs(linesOf({"aimer", "finir"}));
  UserVerbsFile verbs = open(3);
  EXPECT_EQ(verbs.save(verb("courir")), SaveResult::appended);
  EXPECT_EQ(verbs.count(), 4);
  EXPECT_EQ(this->verbs(), linesOf({"aimer", "finir", "courir"}));
  EXPECT_EQ(messages_.texts, Texts{});
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

TEST_F(UserVerbsSave, at_every_count_loses_nothing) {
  const std::vector<std::string_view> all{"aimer", "finir", "rendre"};
  for (std::int32_t count = 0; count <= 5; ++count) {
    writeVerbs(linesOf(all));
    UserVerbsFile verbs = open(count);
    EXPECT_EQ(verbs.save(verb("courir")), SaveResult::appended);
    std::vector<std::string_view> expected(all.begin(), all.begin() + std::min(count, 3));
    expected.push_back("courir");
    EXPECT_EQ(this->verbs(), linesOf(expected)) << count;
    EXPECT_EQ(verbs.count(), count + 1);
    EXPECT_EQ(folder_.has("Czasowniki.bak"), count < 3) << count;
    fs::remove(folder_.path() / "Czasowniki.bak");
  }
}

TEST_F(UserVerbsSave, the_count_stays_at_its_largest_value) {
  UserVerbsFile verbs = open(2'147'483'647);
  EXPECT_EQ(verbs.save(verb("aimer")), SaveResult::appended);
  EXPECT_EQ(verbs.count(), 2'147'483'647);
}

TEST_F(UserVerbsSave, a_negative_count_is_none) {
  UserVerbsFile verbs = open(-7);
  verbs.save(verb("aimer"));
  EXPECT_EQ(verbs.count(), 1);
}

TEST_F(UserVerbsSave, copies_damaged_lines_byte_for_byte) {
  const std::string damaged = " \"rub , bish\" ,\0 \x81\n";
  writeVerbs(lineOf("aimer") + damaged + "\r" + lineOf("finir"));
  open(4).save(verb("courir"));
  EXPECT_EQ(verbs(), lineOf("aimer") + damaged + "\r" + linesOf({"finir", "courir"}));
  EXPECT_EQ(messages_.texts, Texts{"Plik czasowników użytkownika jest uszkodzony (czasownik 2)."});
}

TEST_F(UserVerbsSave, ends_a_damaged_last_line_before_it_appends) {
  writeVerbs(lineOf("aimer") + "rubbish");
  open(2).save(verb("courir"));
  EXPECT_EQ(verbs(), lineOf("aimer") + "rubbish\r\n" + lineOf("courir"));
}

TEST_F(UserVerbsSave, leaves_a_damaged_last_line_as_it_is_when_nothing_follows) {
  writeVerbs(lineOf("aimer") + "rubbish");
  open(2).save(verb("aimer", {{0, "aime"}}));
  EXPECT_EQ(verbs(), lineOf("aimer", {{0, "aime"}}) + "rubbish");
}

// The lengths end with a piece that is read at once, in its middle, and behind it.
TEST_F(UserVerbsSave, copies_a_line_longer_than_one_megabyte_whole) {
  for (const std::size_t length : {17 * 65'536 - 1, 17 * 65'536, 17 * 65'536 + 1, 5'000'000}) {
    const std::string damaged(length, 'x');
    writeVerbs(damaged + "\r\n" + lineOf("aimer") + damaged);
    open(3).save(verb("courir"));
    EXPECT_TRUE(verbs() == damaged + "\r\n" + lineOf("aimer") + damaged + "\r\n" + lineOf("courir"))
        << length;
  }
}

TEST_F(UserVerbsSave, devoir_with_a_comma_in_its_participle_spoils_no_other_verb) {
  UserVerbsFile verbs = open(0);
  verbs.save(verb("devoir", {{0, "dois"}, {99, "dû, due"}, {100, "ayant dû"}}));
  verbs.save(verb("parler", {{0, "parle"}, {100, "ayant parlé"}}));
  engine::FormTable forms;
  std::uint8_t storedAux = 9;
  ASSERT_TRUE(verbs.load("devoir", forms, storedAux));
  EXPECT_EQ(forms[99], french("dû"));
  EXPECT_EQ(forms[100], "due");
  EXPECT_EQ(storedAux, engine::kAvoir);
  ASSERT_TRUE(verbs.load("parler", forms, storedAux));
  EXPECT_EQ(forms[0], "parle");
  EXPECT_EQ(forms[100], french("ayant parlé"));
  EXPECT_EQ(messages_.texts, Texts{});
}

}  // namespace
}  // namespace odmiennik::dictionary
