// SPDX-License-Identifier: GPL-3.0-or-later
// A disk that does not answer for a moment, and another program in the same folder: nothing is
// lost.
#include <gtest/gtest.h>

#include "dictionary/user_verbs.h"
#include "disk/settings.h"
#include "tests/unit/dictionary/faulty_files.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

using odmiennik::testing::FaultyFiles;
using odmiennik::testing::kNotSaved;
using odmiennik::testing::kUnreadable;
using odmiennik::testing::lineOf;
using odmiennik::testing::linesOf;
using odmiennik::testing::ProgramFolder;
using odmiennik::testing::RecordedMessages;
using odmiennik::testing::verb;
using Texts = std::vector<std::string>;

constexpr const char* kNotRestored =
    "Nie można przywrócić pliku czasowników użytkownika (Czasowniki.dat) z pliku Czas.dat.";
constexpr int kNoFaultySteps = 1000;
constexpr const char* kQuestions[] = {"presence", "look", "realFile", "names"};

class UserVerbsInDoubt : public ::testing::Test {
 protected:
  UserVerbsFile open(std::int32_t count) { return {folder_.prefix(), count, messages_, files_}; }
  void write(Utf8View name, std::string_view content) { folder_.write(name, content); }
  std::string verbs() { return folder_.read("Czasowniki.dat"); }

  ProgramFolder folder_;
  RecordedMessages messages_;
  FaultyFiles files_{kNoFaultySteps};
};

TEST_F(UserVerbsInDoubt, a_save_replaces_nothing_that_it_could_not_look_at) {
  const std::string before = linesOf({"aimer", "finir"});
  for (const char* question : kQuestions)
    for (const int times : {1, 2, 100}) {
      write("Czasowniki.dat", before);
      files_.leaveUnanswered(question, times);
      UserVerbsFile verbs = open(2);
      const bool isSaved = verbs.save(verb("rendre")) == SaveResult::appended;
      EXPECT_EQ(this->verbs(), isSaved ? before + lineOf("rendre") : before) << question << times;
      EXPECT_EQ(verbs.count(), isSaved ? 3 : 2) << question << times;
      EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"}) << question << times;
      files_.leaveUnanswered(question, 0);
    }
}

#ifdef _WIN32

// The system itself finds a file by any spelling: nobody asks for the names in the folder.
constexpr const char* kAskedOfSettings[] = {"presence"};

TEST_F(UserVerbsInDoubt, a_save_needs_no_list_of_names_to_find_another_spelling_and_to_keep_it) {
  write("CZASOWNIKI.DAT", lineOf("aimer"));
  files_.leaveUnanswered("names", 1);
  EXPECT_EQ(open(1).save(verb("finir")), SaveResult::appended);
  EXPECT_EQ(folder_.names(), Texts{"CZASOWNIKI.DAT"});
  EXPECT_EQ(folder_.read("CZASOWNIKI.DAT"), linesOf({"aimer", "finir"}));
}

#else

constexpr const char* kAskedOfSettings[] = {"presence", "names"};

TEST_F(UserVerbsInDoubt, a_save_makes_no_second_file_beside_one_of_another_spelling) {
  write("CZASOWNIKI.DAT", lineOf("aimer"));
  files_.leaveUnanswered("names", 1);
  EXPECT_EQ(open(1).save(verb("finir")), SaveResult::failed);
  EXPECT_EQ(messages_.texts, Texts{kNotSaved});
  EXPECT_EQ(folder_.names(), Texts{"CZASOWNIKI.DAT"});
  EXPECT_EQ(folder_.read("CZASOWNIKI.DAT"), lineOf("aimer"));
}

#endif

TEST_F(UserVerbsInDoubt, a_file_that_cannot_be_looked_for_is_unreadable_and_not_missing) {
  write("Czasowniki.dat", lineOf("aimer"));
  files_.leaveUnanswered("presence", 100);
  EXPECT_EQ(open(1).infinitives(), Texts{});
  EXPECT_EQ(messages_.texts, Texts{kUnreadable});
}

TEST_F(UserVerbsInDoubt, a_start_puts_nothing_back_over_a_file_that_it_could_not_look_for) {
  write("Czasowniki.dat", lineOf("aimer"));
  write("Czas.dat", "older");
  for (const char* question : {"presence", "names"}) {
    files_.leaveUnanswered(question, 1);
    open(1).recoverAfterCrash();
    files_.leaveUnanswered(question, 0);
    EXPECT_EQ(verbs(), lineOf("aimer")) << question;
    EXPECT_EQ(folder_.read("Czas.dat"), "older") << question;
  }
}

TEST_F(UserVerbsInDoubt, a_start_puts_nothing_back_over_a_file_that_has_come_meanwhile) {
  write("Czas.dat", "older");
  files_.beforeMoving([this] { write("Czasowniki.dat", lineOf("aimer")); });
  open(1).recoverAfterCrash();
  EXPECT_EQ(verbs(), lineOf("aimer"));
  EXPECT_EQ(messages_.texts, Texts{kNotRestored});
}

TEST_F(UserVerbsInDoubt, a_first_save_replaces_no_file_that_has_come_meanwhile) {
  files_.beforeMoving([this] { write("Czasowniki.dat", lineOf("aimer")); });
  EXPECT_EQ(open(0).save(verb("finir")), SaveResult::failed);
  EXPECT_EQ(verbs(), lineOf("aimer"));
  EXPECT_EQ(messages_.texts, Texts{kNotSaved});
}

TEST_F(UserVerbsInDoubt, settings_that_cannot_be_looked_for_are_not_missing) {
  write("WERBOLIN.CFG", disk::settingsText({.userVerbCount = 7}));
  disk::Settings settings;
  for (const char* question : kAskedOfSettings) {
    files_.leaveUnanswered(question, 1);
    EXPECT_EQ(disk::readSettingsFile(folder_.prefix(), settings, files_),
              disk::SettingsRead::unreadable);
    files_.leaveUnanswered(question, 1);
    EXPECT_FALSE(disk::writeSettingsFile(folder_.prefix(), settings, files_));
    files_.leaveUnanswered(question, 0);
  }
  EXPECT_EQ(folder_.names(), Texts{"WERBOLIN.CFG"});
}

TEST_F(UserVerbsInDoubt, what_a_killed_exit_left_of_the_settings_goes_at_the_next_start) {
  write("Werbolin.cfg", disk::settingsText({}));
  write("Werbolin.cfg.new", "half");
  disk::removeUnfinishedSettings(folder_.prefix());
  EXPECT_EQ(folder_.names(), Texts{"Werbolin.cfg"});
}

class TwoPrograms : public UserVerbsInDoubt {
 protected:
  bool isFound(UserVerbsFile& verbs, std::string_view infinitive) {
    return verbs.load(infinitive, forms_, storedAux_);
  }
  engine::FormTable forms_;
  std::uint8_t storedAux_ = 0;
};

TEST_F(TwoPrograms, notice_each_others_saves) {
  UserVerbsFile first = open(0), second = open(0);
  first.recoverAfterCrash();
  second.recoverAfterCrash();
  EXPECT_EQ(first.save(verb("aimer")), SaveResult::appended);
  EXPECT_EQ(second.save(verb("finir")), SaveResult::appended);
  EXPECT_EQ(second.count(), 2);
  EXPECT_TRUE(isFound(first, "finir"));
  EXPECT_EQ(first.save(verb("rendre")), SaveResult::appended);
  EXPECT_EQ(first.count(), 3);
  EXPECT_TRUE(isFound(second, "rendre"));
  EXPECT_EQ(verbs(), linesOf({"aimer", "finir", "rendre"}));
  EXPECT_EQ(folder_.names(), Texts{"Czasowniki.dat"});
}

TEST_F(TwoPrograms, notice_each_others_deletes) {
  write("Czasowniki.dat", linesOf({"aimer", "finir"}));
  UserVerbsFile first = open(2), second = open(2);
  first.recoverAfterCrash();
  second.recoverAfterCrash();
  EXPECT_EQ(first.remove("aimer"), DeleteResult::deleted);
  second.lookAgain();
  EXPECT_EQ(second.count(), 1);
  EXPECT_EQ(second.remove("aimer"), DeleteResult::notFound);
}

// Acts between reading and swapping, as an editor does that knows nothing of locks.
class ActingInput final : public disk::InputFile {
 public:
  ActingInput(std::unique_ptr<disk::InputFile> file, std::function<void()>& act)
      : file_(std::move(file)), act_(act) {}
  std::ptrdiff_t read(char* buffer, std::size_t size) override {
    const std::ptrdiff_t got = file_->read(buffer, size);
    if (got == 0 && act_) std::exchange(act_, nullptr)();
    return got;
  }

 private:
  std::unique_ptr<disk::InputFile> file_;
  std::function<void()>& act_;
};

TEST_F(TwoPrograms, a_change_between_reading_and_swapping_is_read_anew_and_merged) {
  write("Czasowniki.dat", lineOf("aimer"));
  std::function<void()> act = [this] { write("Czasowniki.dat", linesOf({"aimer", "finir"})); };
  files_.wrapInputs([&act](std::unique_ptr<disk::InputFile> file) {
    return std::make_unique<ActingInput>(std::move(file), act);
  });
  UserVerbsFile verbs = open(1);
  EXPECT_EQ(verbs.save(verb("rendre")), SaveResult::appended);
  EXPECT_EQ(this->verbs(), linesOf({"aimer", "finir", "rendre"}));
  EXPECT_EQ(verbs.count(), 3);
}

TEST_F(TwoPrograms, a_folder_that_another_program_keeps_is_not_written_to) {
  write("Czasowniki.dat", lineOf("aimer"));
  files_.leaveUnanswered("lock", 1);
  EXPECT_EQ(open(1).save(verb("finir")), SaveResult::failed);
  EXPECT_EQ(verbs(), lineOf("aimer"));
  EXPECT_EQ(messages_.texts, Texts{kNotSaved});
}

}  // namespace
}  // namespace odmiennik::dictionary
