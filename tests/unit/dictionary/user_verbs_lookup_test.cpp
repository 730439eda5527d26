// SPDX-License-Identifier: GPL-3.0-or-later
// Looking up and listing the user's own verbs.
#include <gtest/gtest.h>

#include "dictionary/user_verbs.h"
#include "tests/support/test_program.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

using odmiennik::testing::french;
using odmiennik::testing::kUnreadable;
using odmiennik::testing::lineOf;
using odmiennik::testing::linesOf;
using odmiennik::testing::ProgramFolder;
using odmiennik::testing::RecordedMessages;
using odmiennik::testing::verb;
using Texts = std::vector<std::string>;

constexpr const char* kDamagedSecond =
    "Plik czasowników użytkownika jest uszkodzony (czasownik 2).";

class UserVerbsLookUp : public ::testing::Test {
 protected:
  bool load(UserVerbsFile& verbs, std::string_view key) {
    return verbs.load(french(key), forms_, storedAux_);
  }
  bool load(std::int32_t count, std::string_view key) {
    UserVerbsFile verbs(folder_.prefix(), count, messages_);
    return load(verbs, key);
  }
  void writeVerbs(std::string_view content) { folder_.write("Czasowniki.dat", content); }

  ProgramFolder folder_;
  RecordedMessages messages_;
  engine::FormTable forms_;
  std::uint8_t storedAux_ = 9;
};

TEST_F(UserVerbsLookUp, finds_the_first_record_of_a_verb) {
  writeVerbs(lineOf("aimer") + lineOf("être", {{0, "un"}}) + lineOf("être", {{0, "deux"}}));
  EXPECT_TRUE(load(3, "être"));
  EXPECT_EQ(forms_[0], "un");
  EXPECT_EQ(forms_[96], french("être"));
}

TEST_F(UserVerbsLookUp, gives_the_stored_auxiliary) {
  UserVerbRecord record = verb("aller");
  record.auxiliary = engine::kEtre;
  writeVerbs(recordLine(record) + lineOf("aimer"));
  EXPECT_TRUE(load(2, "aller"));
  EXPECT_EQ(storedAux_, engine::kEtre);
  EXPECT_TRUE(load(2, "aimer"));
  EXPECT_EQ(storedAux_, engine::kAvoir);
}

TEST_F(UserVerbsLookUp, compares_trimmed_lower_cased_and_without_reflexive_prefix) {
  writeVerbs(linesOf({"Aimer", "se LAVER", "s'Écrier"}));
  for (const char* key : {"aimer", "laver", "écrier"}) EXPECT_TRUE(load(3, key)) << key;
  EXPECT_EQ(forms_[96], french("s'Écrier"));
}

TEST_F(UserVerbsLookUp, takes_the_record_of_just_what_was_typed_before_one_with_another_prefix) {
  writeVerbs(lineOf("se laver", {{0, "me lave"}}) + lineOf("Laver", {{0, "lave"}}));
  EXPECT_TRUE(load(2, "laver"));
  EXPECT_EQ(forms_[0], "lave");
  EXPECT_TRUE(load(2, "se laver"));
  EXPECT_EQ(forms_[0], "me lave");
}

TEST_F(UserVerbsLookUp, takes_the_first_record_that_matches_without_prefix_when_there_is_no_other) {
  writeVerbs(lineOf("aimer") + lineOf("se laver", {{0, "un"}}) + lineOf("se laver", {{0, "deux"}}));
  EXPECT_TRUE(load(3, "laver"));
  EXPECT_EQ(forms_[0], "un");
}

TEST_F(UserVerbsLookUp, reads_a_reflexive_prefix_however_it_was_typed) {
  writeVerbs(linesOf({"Se zyzer", "S’habiller"}));
  EXPECT_TRUE(load(2, "se zyzer"));
  EXPECT_EQ(forms_[96], "se zyzer");
  EXPECT_TRUE(load(2, "s'habiller"));
  EXPECT_EQ(forms_[96], "s'habiller");
  UserVerbsFile verbs(folder_.prefix(), 2, messages_);
  EXPECT_EQ(verbs.infinitives(), (Texts{"se zyzer", "s'habiller"}));
}

TEST_F(UserVerbsLookUp, reads_no_more_records_than_are_counted) {
  writeVerbs(linesOf({"aimer", "finir", "rendre"}));
  EXPECT_TRUE(load(2, "finir"));
  EXPECT_FALSE(load(2, "rendre"));
  EXPECT_FALSE(load(0, "aimer"));
  EXPECT_FALSE(load(-1, "aimer"));
}

TEST_F(UserVerbsLookUp, a_count_larger_than_the_file_is_not_found_without_message) {
  writeVerbs(linesOf({"aimer", "finir"}));
  EXPECT_FALSE(load(3, "rendre"));
  EXPECT_FALSE(load(2'147'483'647, "rendre"));
  EXPECT_EQ(messages_.texts, Texts{});
}

TEST_F(UserVerbsLookUp, a_missing_file_or_folder_holds_no_verbs) {
  UserVerbsFile nowhere(folder_.prefix() + "none/", 5, messages_);
  EXPECT_FALSE(load(5, "aimer"));
  EXPECT_FALSE(load(nowhere, "aimer"));
  EXPECT_EQ(nowhere.infinitives(), Texts{});
  EXPECT_EQ(messages_.texts, Texts{});
}

TEST_F(UserVerbsLookUp, finds_the_file_without_regard_to_case) {
  folder_.write("CZASOWNIKI.DAT", lineOf("aimer"));
  EXPECT_TRUE(load(1, "aimer"));
}

TEST_F(UserVerbsLookUp, the_exact_spelling_goes_first) {
  folder_.write("CZASOWNIKI.DAT", lineOf("finir"));
  writeVerbs(lineOf("aimer"));
  EXPECT_TRUE(load(1, "aimer"));
}

TEST_F(UserVerbsLookUp, reads_all_three_line_ends) {
  std::string aimer = lineOf("aimer"), finir = lineOf("finir"), rendre = lineOf("rendre");
  aimer.erase(aimer.size() - 2, 1);
  finir.pop_back();
  rendre.resize(rendre.size() - 2);
  writeVerbs(aimer + finir + lineOf("courir") + rendre);
  for (const char* key : {"aimer", "finir", "courir", "rendre"}) EXPECT_TRUE(load(4, key)) << key;
  EXPECT_EQ(messages_.texts, Texts{});
}

TEST_F(UserVerbsLookUp, a_damaged_record_is_counted_and_passed_over) {
  writeVerbs(lineOf("aimer") + "rubbish\r\n" + linesOf({"finir", "rendre"}));
  EXPECT_TRUE(load(3, "finir"));
  EXPECT_FALSE(load(3, "rendre"));
  EXPECT_EQ(messages_.texts, (Texts{kDamagedSecond, kDamagedSecond}));
}

TEST_F(UserVerbsLookUp, damage_is_shown_once_per_run) {
  writeVerbs(lineOf("aimer") + "rubbish\r\n\r\n" + lineOf("finir"));
  UserVerbsFile verbs(folder_.prefix(), 4, messages_);
  EXPECT_TRUE(load(verbs, "finir"));
  EXPECT_TRUE(load(verbs, "finir"));
  EXPECT_EQ(verbs.infinitives(), (Texts{"aimer", "finir"}));
  EXPECT_EQ(messages_.texts, Texts{kDamagedSecond});
}

TEST_F(UserVerbsLookUp, damage_behind_the_verb_is_not_reached) {
  writeVerbs(lineOf("aimer") + "rubbish\r\n");
  EXPECT_TRUE(load(2, "aimer"));
  EXPECT_EQ(messages_.texts, Texts{});
}

TEST_F(UserVerbsLookUp, a_record_never_reaches_past_its_line) {
  writeVerbs("a,b\r\n\"c,d\r\n" + lineOf("aimer"));
  EXPECT_TRUE(load(3, "aimer"));
}

TEST_F(UserVerbsLookUp, a_folder_in_the_place_of_the_file_is_reported_once) {
  fs::create_directory(folder_.path() / "Czasowniki.dat");
  UserVerbsFile verbs(folder_.prefix(), 1, messages_);
  EXPECT_FALSE(load(verbs, "aimer"));
  EXPECT_EQ(verbs.infinitives(), Texts{});
  EXPECT_EQ(messages_.texts, Texts{kUnreadable});
}

TEST_F(UserVerbsLookUp, without_prefix_the_file_is_in_the_current_folder) {
  folder_.write("CZASOWNIKI.dat", lineOf("aimer"));
  const fs::path before = fs::current_path();
  fs::current_path(folder_.path());
  UserVerbsFile verbs("", 1, messages_);
  EXPECT_TRUE(load(verbs, "aimer"));
  EXPECT_EQ(verbs.save(verb("finir")), SaveResult::appended);
  fs::current_path(before);
  EXPECT_EQ(folder_.read("CZASOWNIKI.dat"), linesOf({"aimer", "finir"}));
}

TEST_F(UserVerbsLookUp, lists_every_record_in_file_order_whatever_the_count) {
  writeVerbs(linesOf({"rendre", "aimer", "rendre"}));
  UserVerbsFile verbs(folder_.prefix(), 1, messages_);
  EXPECT_EQ(verbs.infinitives(), (Texts{"rendre", "aimer", "rendre"}));
}

TEST_F(UserVerbsLookUp, a_line_of_one_megabyte_is_read_and_a_longer_one_is_damage) {
  std::string longest = lineOf("aimer");
  longest.insert(0, (std::size_t{1} << 20) - (longest.size() - 2), 'x');
  writeVerbs("x" + longest + longest);
  EXPECT_TRUE(load(2, "aimer"));
  EXPECT_EQ(messages_.texts, Texts{"Plik czasowników użytkownika jest uszkodzony (czasownik 1)."});
}

TEST_F(UserVerbsLookUp, a_line_of_many_megabytes_is_one_record) {
  writeVerbs(std::string(5'000'000, 'x') + "\r\n" + linesOf({"aimer", "finir"}));
  EXPECT_TRUE(load(2, "aimer"));
  EXPECT_FALSE(load(2, "finir"));
}

}  // namespace
}  // namespace odmiennik::dictionary
