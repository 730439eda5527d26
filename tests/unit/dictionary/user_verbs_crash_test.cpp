// SPDX-License-Identifier: GPL-3.0-or-later
// The power fails at every step of a save and of a delete: nothing is lost, and the next start
// tidies up.
#include <gtest/gtest.h>

#include "dictionary/user_verbs.h"
#include "tests/unit/dictionary/faulty_files.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

namespace fs = std::filesystem;

using odmiennik::testing::Afterwards;
using odmiennik::testing::FaultyFiles;
using odmiennik::testing::lineOf;
using odmiennik::testing::kNotSaved;
using odmiennik::testing::linesOf;
using odmiennik::testing::ProgramFolder;
using odmiennik::testing::RecordedMessages;
using odmiennik::testing::verb;
using Texts = std::vector<std::string>;

constexpr int kMoreStepsThanAnyTakes = 100;

class UserVerbsCrash : public ::testing::Test {
 protected:
  void startWith(std::string_view verbs, std::string_view previous) {
    fs::remove_all(folder_.path());
    fs::create_directory(folder_.path());
    folder_.write("Czasowniki.dat", verbs);
    if (!previous.empty()) folder_.write("Czas.dat", previous);
    messages_.texts.clear();
  }
  std::string verbs() { return folder_.read("Czasowniki.dat"); }
  void expectOldOrNew(const std::string& before, const std::string& after, bool isDone, int step) {
    EXPECT_EQ(verbs(), isDone ? after : before) << step;
    EXPECT_EQ(messages_.texts, isDone ? Texts{} : Texts{kNotSaved}) << step;
  }
  void restart(std::int32_t count) {
    UserVerbsFile(folder_.prefix(), count, messages_).recoverAfterCrash();
  }

  ProgramFolder folder_;
  RecordedMessages messages_;
};

TEST_F(UserVerbsCrash, a_save_leaves_the_old_file_or_the_new_one) {
  const std::string before = linesOf({"aimer", "finir"});
  const std::string after = before + lineOf("rendre");
  bool hasFailed = true;
  int step = 0;
  for (; hasFailed && step < kMoreStepsThanAnyTakes; ++step) {
    startWith(before, "older");
    FaultyFiles files(step);
    UserVerbsFile verbs(folder_.prefix(), 2, messages_, files);
    const bool isSaved = verbs.save(verb("rendre")) == SaveResult::appended;
    hasFailed = files.hasFailed();
    expectOldOrNew(before, after, isSaved, step);
    EXPECT_EQ(verbs.count(), isSaved ? 3 : 2);
    restart(verbs.count());
    EXPECT_EQ(this->verbs(), isSaved ? after : before);
    EXPECT_FALSE(folder_.has("Czasowniki.dat.new"));
  }
  EXPECT_GT(step, 5);
  EXPECT_FALSE(hasFailed);
}

TEST_F(UserVerbsCrash, a_save_that_drops_records_never_is_without_them) {
  const std::string before = linesOf({"aimer", "finir"});
  bool hasFailed = true;
  int step = 0;
  for (; hasFailed && step < kMoreStepsThanAnyTakes; ++step) {
    startWith(before, {});
    FaultyFiles files(step);
    UserVerbsFile verbs(folder_.prefix(), 1, messages_, files);
    verbs.save(verb("rendre"));
    hasFailed = files.hasFailed();
    const bool isKept = folder_.has("Czasowniki.bak") && folder_.read("Czasowniki.bak") == before;
    EXPECT_TRUE(isKept || this->verbs() == before) << step;
  }
  EXPECT_GT(step, 5);
  EXPECT_FALSE(hasFailed);
}

TEST_F(UserVerbsCrash, a_delete_leaves_the_old_file_or_the_new_one) {
  const std::string before = linesOf({"aimer", "finir"});
  bool hasFailed = true;
  int step = 0;
  for (; hasFailed && step < kMoreStepsThanAnyTakes; ++step) {
    startWith(before, "older");
    FaultyFiles files(step);
    UserVerbsFile verbs(folder_.prefix(), 2, messages_, files);
    const bool isDeleted = verbs.remove("aimer") == DeleteResult::deleted;
    hasFailed = files.hasFailed();
    expectOldOrNew(before, lineOf("finir"), isDeleted, step);
    EXPECT_EQ(verbs.count(), isDeleted ? 1 : 2);
  }
  EXPECT_GT(step, 5);
  EXPECT_FALSE(hasFailed);
  EXPECT_EQ(folder_.read("Czas.dat"), before);
}

TEST_F(UserVerbsCrash, a_second_delete_after_a_failed_one_ends_as_described) {
  const std::string before = linesOf({"aimer", "finir"});
  bool hasFailed = true;
  for (int step = 0; hasFailed && step < kMoreStepsThanAnyTakes; ++step) {
    startWith(before, "older");
    FaultyFiles files(step);
    UserVerbsFile verbs(folder_.prefix(), 2, messages_, files);
    const bool isDeleted = verbs.remove("aimer") == DeleteResult::deleted;
    hasFailed = files.hasFailed();
    restart(2);
    UserVerbsFile again(folder_.prefix(), 2, messages_);
    again.remove("finir");
    EXPECT_EQ(folder_.names(), (Texts{"Czas.dat", "Czasowniki.dat"})) << step;
    EXPECT_EQ(this->verbs(), isDeleted ? "" : lineOf("aimer")) << step;
  }
  EXPECT_FALSE(hasFailed);
}

TEST_F(UserVerbsCrash, a_step_that_fails_once_is_not_forgotten) {
  const std::string before = lineOf("aimer", {{0, std::string(200'000, 'a')}}) +
                             lineOf("finir", {{0, std::string(200'000, 'f')}});
  bool hasFailed = true;
  for (int step = 0; hasFailed && step < kMoreStepsThanAnyTakes; ++step) {
    startWith(before, "older");
    FaultyFiles files(step, Afterwards::allSucceeds);
    UserVerbsFile verbs(folder_.prefix(), 2, messages_, files);
    const bool isSaved = verbs.save(verb("rendre")) == SaveResult::appended;
    hasFailed = files.hasFailed();
    EXPECT_TRUE(this->verbs() == (isSaved ? before + lineOf("rendre") : before)) << step;
    EXPECT_FALSE(folder_.has("Czasowniki.dat.new")) << step;
  }
  EXPECT_FALSE(hasFailed);
}

TEST_F(UserVerbsCrash, a_file_that_cannot_be_read_to_its_end_is_never_replaced) {
  const std::string before = linesOf({"aimer", "finir", "rendre"});
  startWith(before, {});
  FaultyFiles files(kMoreStepsThanAnyTakes);
  files.failReadingAfter(before.size() / 2);
  UserVerbsFile verbs(folder_.prefix(), 3, messages_, files);
  EXPECT_EQ(verbs.save(verb("courir")), SaveResult::failed);
  EXPECT_EQ(messages_.texts, Texts{kNotSaved});
  EXPECT_EQ(verbs.remove("aimer"), DeleteResult::failed);
  EXPECT_EQ(verbs.remove("rendre"), DeleteResult::failed);
  EXPECT_EQ(this->verbs(), before);
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

// Swapped in before it is on the disk, the new content could be lost together with the old.
TEST_F(UserVerbsCrash, new_content_is_on_the_disk_before_it_is_swapped_in) {
  startWith(linesOf({"aimer", "finir"}), {});
  FaultyFiles files(kMoreStepsThanAnyTakes);
  UserVerbsFile verbs(folder_.prefix(), 2, messages_, files);
  verbs.save(verb("rendre"));
  EXPECT_EQ(files.taken(), (Texts{"create", "write", "finish", "moveOver", "syncFolder"}));
}

TEST_F(UserVerbsCrash, content_that_does_not_reach_the_disk_is_not_swapped_in) {
  startWith(lineOf("aimer"), {});
  constexpr int kStepsBeforeFinish = 2;
  FaultyFiles files(kStepsBeforeFinish, Afterwards::allSucceeds);
  UserVerbsFile verbs(folder_.prefix(), 1, messages_, files);
  EXPECT_EQ(verbs.save(verb("rendre")), SaveResult::failed);
  EXPECT_EQ(files.taken(), (Texts{"create", "write", "remove"}));
  EXPECT_EQ(this->verbs(), lineOf("aimer"));
}

TEST_F(UserVerbsCrash, the_old_content_has_its_second_name_before_the_new_is_swapped_in) {
  startWith(linesOf({"aimer", "finir"}), {});
  FaultyFiles files(kMoreStepsThanAnyTakes);
  UserVerbsFile verbs(folder_.prefix(), 2, messages_, files);
  verbs.remove("aimer");
  EXPECT_EQ(files.taken(),
            (Texts{"create", "write", "finish", "keepAs", "syncFolder", "moveOver", "syncFolder"}));
}

TEST_F(UserVerbsCrash, a_start_puts_back_the_previous_content_when_the_file_is_missing) {
  folder_.write("czas.DAT", lineOf("aimer"));
  restart(1);
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
  EXPECT_EQ(verbs(), lineOf("aimer"));
}

TEST_F(UserVerbsCrash, a_start_with_count_zero_puts_nothing_back) {
  folder_.write("Czas.dat", lineOf("aimer"));
  restart(0);
  EXPECT_EQ(folder_.names(), Texts{"Czas.dat"});
}

TEST_F(UserVerbsCrash, a_start_leaves_an_existing_file_alone) {
  startWith(lineOf("aimer"), "older");
  restart(1);
  EXPECT_EQ(verbs(), lineOf("aimer"));
  EXPECT_EQ(folder_.read("Czas.dat"), "older");
}

TEST_F(UserVerbsCrash, a_start_with_nothing_to_put_back_is_silent) {
  restart(5);
  EXPECT_EQ(folder_.names(), Texts{});
  EXPECT_EQ(messages_.texts, Texts{});
}

TEST_F(UserVerbsCrash, a_start_that_cannot_put_back_says_so) {
  folder_.write("Czas.dat", lineOf("aimer"));
  FaultyFiles files(0);
  UserVerbsFile(folder_.prefix(), 1, messages_, files).recoverAfterCrash();
  EXPECT_EQ(messages_.texts, Texts{"Nie można przywrócić pliku czasowników użytkownika "
                                   "(Czasowniki.dat) z pliku Czas.dat."});
  EXPECT_EQ(folder_.names(), Texts{"Czas.dat"});
}

TEST_F(UserVerbsCrash, a_count_one_too_small_after_a_crash_ignores_the_last_verb_that_the_list_shows) {
  UserVerbsFile crashed(folder_.prefix(), 0, messages_);
  crashed.save(verb("aimer"));
  crashed.save(verb("finir"));
  UserVerbsFile restarted(folder_.prefix(), 1, messages_);
  engine::FormTable forms;
  std::uint8_t storedAux = 0;
  EXPECT_TRUE(restarted.load("aimer", forms, storedAux));
  EXPECT_FALSE(restarted.load("finir", forms, storedAux));
  EXPECT_EQ(restarted.infinitives(), (Texts{"aimer", "finir"}));
}

TEST_F(UserVerbsCrash, a_count_one_too_large_after_a_crash_finds_every_verb) {
  startWith(linesOf({"aimer", "finir"}), {});
  UserVerbsFile(folder_.prefix(), 2, messages_).remove("aimer");
  UserVerbsFile restarted(folder_.prefix(), 2, messages_);
  engine::FormTable forms;
  std::uint8_t storedAux = 0;
  EXPECT_TRUE(restarted.load("finir", forms, storedAux));
  EXPECT_FALSE(restarted.load("aimer", forms, storedAux));
  EXPECT_EQ(messages_.texts, Texts{});
}

}  // namespace
}  // namespace odmiennik::dictionary
