// SPDX-License-Identifier: GPL-3.0-or-later
// Trouble that only a real system makes: no rights, a full disk, links, a file without line ends.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <functional>

#include "dictionary/user_verbs.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

using odmiennik::testing::lineOf;
using odmiennik::testing::kNotSaved;
using odmiennik::testing::linesOf;
using odmiennik::testing::ProgramFolder;
using odmiennik::testing::RecordedMessages;
using odmiennik::testing::verb;
using Texts = std::vector<std::string>;


// Whether `isRight` holds in a process of its own, whose limits and rights it may lower.
bool holdsInChild(const std::function<bool()>& isRight) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(isRight() ? 0 : 1);
  int status = -1;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// Nobody in particular: to the superuser, permissions mean nothing.
bool becomeOrdinaryUser() {
  constexpr uid_t kNobody = 65534;
  return ::geteuid() != 0 || (::setgid(kNobody) == 0 && ::setuid(kNobody) == 0);
}

class UserVerbsTrouble : public ::testing::Test {
 protected:
  UserVerbsFile open(std::int32_t count) { return {folder_.prefix(), count, messages_}; }
  void writeVerbs(std::string_view content) { folder_.write("Czasowniki.dat", content); }
  bool isRefused() {
    UserVerbsFile verbs = open(2);
    const bool isSaveRefused = verbs.save(verb("rendre")) == SaveResult::failed;
    const bool isDeleteRefused = verbs.remove("aimer") == DeleteResult::failed;
    return isSaveRefused && isDeleteRefused && verbs.count() == 2 &&
           messages_.texts == Texts{kNotSaved, kNotSaved};
  }

  ProgramFolder folder_;
  RecordedMessages messages_;
};

TEST_F(UserVerbsTrouble, a_read_only_folder_keeps_its_file_and_the_user_is_told) {
  const std::string before = linesOf({"aimer", "finir"});
  writeVerbs(before);
  fs::permissions(folder_.path(), fs::perms(0555));
  EXPECT_TRUE(holdsInChild([&] { return becomeOrdinaryUser() && isRefused(); }));
  fs::permissions(folder_.path(), fs::perms(0755));
  EXPECT_EQ(folder_.read("Czasowniki.dat"), before);
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

TEST_F(UserVerbsTrouble, a_read_only_file_is_kept_and_the_user_is_told) {
  const std::string before = linesOf({"aimer", "finir"});
  writeVerbs(before);
  fs::permissions(folder_.path(), fs::perms(0777));
  fs::permissions(folder_.path() / "Czasowniki.dat", fs::perms(0444));
  EXPECT_TRUE(holdsInChild([&] { return becomeOrdinaryUser() && isRefused(); }));
  EXPECT_EQ(folder_.read("Czasowniki.dat"), before);
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

TEST_F(UserVerbsTrouble, a_file_without_right_to_read_is_reported_and_never_replaced) {
  const std::string before = linesOf({"aimer", "finir"});
  writeVerbs(before);
  fs::permissions(folder_.path(), fs::perms(0777));
  fs::permissions(folder_.path() / "Czasowniki.dat", fs::perms(0222));
  EXPECT_TRUE(holdsInChild([&] {
    if (!becomeOrdinaryUser()) return false;
    UserVerbsFile verbs = open(2);
    const bool isListed = !verbs.infinitives().empty();
    const bool isSaved = verbs.save(verb("rendre")) != SaveResult::failed;
    const bool isDeleted = verbs.remove("aimer") != DeleteResult::failed;
    return !isListed && !isSaved && !isDeleted &&
           messages_.texts ==
               Texts{"Nie można odczytać pliku czasowników użytkownika.", kNotSaved, kNotSaved};
  }));
  fs::permissions(folder_.path() / "Czasowniki.dat", fs::perms(0644));
  EXPECT_EQ(folder_.read("Czasowniki.dat"), before);
}

TEST_F(UserVerbsTrouble, a_full_disk_keeps_the_old_file_and_the_user_is_told) {
  const std::string before = linesOf({"aimer", "finir"});
  writeVerbs(before);
  EXPECT_TRUE(holdsInChild([&] {
    constexpr rlimit kHundredBytes{100, 100};
    return ::setrlimit(RLIMIT_FSIZE, &kHundredBytes) == 0 && isRefused();
  }));
  EXPECT_EQ(folder_.read("Czasowniki.dat"), before);
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

TEST_F(UserVerbsTrouble, a_missing_folder_is_reported_by_a_save) {
  UserVerbsFile verbs(folder_.prefix() + "none/", 0, messages_);
  EXPECT_EQ(verbs.save(verb("aimer")), SaveResult::failed);
  EXPECT_EQ(verbs.count(), 0);
  EXPECT_EQ(messages_.texts, Texts{kNotSaved});
}

TEST_F(UserVerbsTrouble, a_directory_in_the_place_of_the_new_file_is_no_obstacle) {
  fs::create_directory(folder_.path() / "Czasowniki.dat.new");
  EXPECT_EQ(open(0).save(verb("aimer")), SaveResult::appended);
  EXPECT_EQ(folder_.read("Czasowniki.dat"), lineOf("aimer"));
}

TEST_F(UserVerbsTrouble, a_directory_in_the_place_of_the_file_is_reported_by_a_save) {
  fs::create_directory(folder_.path() / "Czasowniki.dat");
  EXPECT_EQ(open(0).save(verb("aimer")), SaveResult::failed);
  EXPECT_EQ(messages_.texts, Texts{kNotSaved});
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

TEST_F(UserVerbsTrouble, a_pipe_in_the_place_of_the_file_is_not_waited_for) {
  ASSERT_EQ(::mkfifo((folder_.path() / "Czasowniki.dat").c_str(), 0600), 0);
  EXPECT_EQ(open(1).infinitives(), Texts{});
  EXPECT_EQ(messages_.texts, Texts{"Nie można odczytać pliku czasowników użytkownika."});
}

TEST_F(UserVerbsTrouble, a_link_stays_a_link_to_the_file_that_is_rewritten) {
  const ProgramFolder elsewhere;
  const std::string before = linesOf({"aimer", "finir"});
  elsewhere.write("verbs", before);
  fs::create_symlink(elsewhere.path() / "verbs", folder_.path() / "Czasowniki.dat");
  EXPECT_EQ(open(2).remove("finir"), DeleteResult::deleted);
  EXPECT_TRUE(fs::is_symlink(folder_.path() / "Czasowniki.dat"));
  EXPECT_EQ(elsewhere.read("verbs"), lineOf("aimer"));
  EXPECT_EQ(folder_.read("Czas.dat"), before);
}

TEST_F(UserVerbsTrouble, the_new_file_has_the_permissions_of_the_old) {
  writeVerbs(lineOf("aimer"));
  fs::permissions(folder_.path() / "Czasowniki.dat", fs::perms(0640));
  EXPECT_EQ(open(1).save(verb("finir")), SaveResult::appended);
  EXPECT_EQ(fs::status(folder_.path() / "Czasowniki.dat").permissions(), fs::perms(0640));
}

// How much memory, in kilobytes, looking up and listing takes beyond what the process has.
bool takesLittleMemory(UserVerbsFile& verbs) {
  constexpr long kLimit = 20'000;
  rusage before{}, after{};
  ::getrusage(RUSAGE_SELF, &before);
  engine::FormTable forms;
  std::uint8_t storedAux = 0;
  const bool isFound = verbs.load("aimer", forms, storedAux) || !verbs.infinitives().empty();
  ::getrusage(RUSAGE_SELF, &after);
  return !isFound && after.ru_maxrss - before.ru_maxrss < kLimit;
}

TEST_F(UserVerbsTrouble, a_gigabyte_without_line_end_is_damage_in_little_memory) {
  constexpr std::uintmax_t kGigabyte = std::uintmax_t{1} << 30;
  writeVerbs("");
  fs::resize_file(folder_.path() / "Czasowniki.dat", kGigabyte);
  EXPECT_TRUE(holdsInChild([&] {
    UserVerbsFile verbs = open(1);
    return takesLittleMemory(verbs) &&
           messages_.texts == Texts{"Plik czasowników użytkownika jest uszkodzony (czasownik 1)."};
  }));
}

// Copied, it would fill the disk.
TEST_F(UserVerbsTrouble, four_gigabytes_without_line_end_are_refused_by_a_save_rather_than_copied) {
  constexpr std::uintmax_t kFourGigabytes = std::uintmax_t{1} << 32;
  writeVerbs("");
  fs::resize_file(folder_.path() / "Czasowniki.dat", kFourGigabytes);
  EXPECT_EQ(open(1).save(verb("aimer")), SaveResult::failed);
  EXPECT_EQ(messages_.texts, Texts{kNotSaved});
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

TEST_F(UserVerbsTrouble, binary_rubbish_is_damage_in_little_memory) {
  std::string rubbish(50'000'000, '\0');
  std::uint32_t state = 1;
  for (char& byte : rubbish) byte = static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
  writeVerbs(rubbish);
  EXPECT_TRUE(holdsInChild([&] {
    UserVerbsFile verbs = open(2'147'483'647);
    return takesLittleMemory(verbs) &&
           messages_.texts == Texts{"Plik czasowników użytkownika jest uszkodzony (czasownik 1)."};
  }));
}

}  // namespace
}  // namespace odmiennik::dictionary

#endif
