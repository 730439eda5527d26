// SPDX-License-Identifier: GPL-3.0-or-later
// User verbs read from where their records begin.
#include <gtest/gtest.h>

#include "dictionary/user_verbs.h"
#include "tests/support/test_program.h"
#include "tests/unit/dictionary/faulty_files.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

using odmiennik::testing::FaultyFiles;
using odmiennik::testing::french;
using odmiennik::testing::lineOf;
using odmiennik::testing::ProgramFolder;
using odmiennik::testing::RecordedMessages;

constexpr int kVerbs = 1000;

// Counts what is read, and passes over without reading, unless it is told not to.
class CountingInput final : public disk::InputFile {
 public:
  CountingInput(std::unique_ptr<disk::InputFile> file, std::uint64_t& count, const bool& maySkip)
      : file_(std::move(file)), count_(count), maySkip_(maySkip) {}
  std::ptrdiff_t read(char* buffer, std::size_t size) override {
    const std::ptrdiff_t got = file_->read(buffer, size);
    count_ += static_cast<std::uint64_t>(std::max<std::ptrdiff_t>(got, 0));
    return got;
  }
  bool skip(std::uint64_t count) override { return maySkip_ && file_->skip(count); }

 private:
  std::unique_ptr<disk::InputFile> file_;
  std::uint64_t& count_;
  const bool& maySkip_;
};

class places_of_user_verbs : public ::testing::Test {
 protected:
  places_of_user_verbs() {
    files_.wrapInputs(
        [this](std::unique_ptr<disk::InputFile> file) -> std::unique_ptr<disk::InputFile> {
          return std::make_unique<CountingInput>(std::move(file), bytesRead_, maySkip_);
        });
  }
  void writeVerbs(int first, const std::string& before = {}) {
    std::string content = before;
    for (int number = first; number < first + kVerbs; ++number)
      content += lineOf("verbe" + std::to_string(number) + "r", {{0, "forme"}});
    folder_.write("Czasowniki.dat", content);
  }
  bool load(int number) {
    return verbs_.load("verbe" + std::to_string(number) + "r", forms_, storedAux_);
  }

  ProgramFolder folder_;
  RecordedMessages messages_;
  FaultyFiles files_{1'000'000};
  UserVerbsFile verbs_{folder_.prefix(), kVerbs, messages_, files_};
  engine::FormTable forms_;
  std::uint8_t storedAux_ = 9;
  std::uint64_t bytesRead_ = 0;
  bool maySkip_ = true;
};

TEST_F(places_of_user_verbs, are_noted_once_and_the_verb_alone_is_read_then) {
  writeVerbs(0);
  EXPECT_TRUE(load(999));
  const std::uint64_t whole = bytesRead_;
  bytesRead_ = 0;
  EXPECT_TRUE(load(998));
  EXPECT_EQ(forms_[engine::slot::kInfinitive], "verbe998r");
  EXPECT_LT(bytesRead_, whole / 4);
  bytesRead_ = 0;
  EXPECT_FALSE(load(5000));
  EXPECT_EQ(bytesRead_, 0U);
}

TEST_F(places_of_user_verbs, are_noted_anew_when_the_file_has_changed) {
  writeVerbs(0);
  EXPECT_TRUE(load(999));
  const std::uint64_t version = verbs_.version();
  writeVerbs(500);
  EXPECT_TRUE(load(1499));
  EXPECT_FALSE(load(0));
  EXPECT_NE(verbs_.version(), version);
}

TEST_F(places_of_user_verbs, stay_known_while_the_file_does_not_change) {
  writeVerbs(0);
  EXPECT_TRUE(load(1));
  const std::uint64_t version = verbs_.version();
  EXPECT_TRUE(load(2));
  EXPECT_EQ(verbs_.version(), version);
}

TEST_F(places_of_user_verbs, tell_of_damage_before_the_verb_and_not_behind_it) {
  writeVerbs(0);
  folder_.write("Czasowniki.dat", folder_.read("Czasowniki.dat") + "damage\r\n");
  verbs_.startWith(kVerbs + 1);
  EXPECT_TRUE(load(3));
  EXPECT_TRUE(load(4));
  EXPECT_TRUE(messages_.texts.empty());
  EXPECT_FALSE(load(5000));
  EXPECT_EQ(messages_.texts.size(), 1U);
}

TEST_F(places_of_user_verbs, that_cannot_be_gone_to_are_done_without) {
  writeVerbs(0);
  EXPECT_TRUE(load(999));
  maySkip_ = false;
  EXPECT_TRUE(load(998));
  EXPECT_EQ(forms_[engine::slot::kInfinitive], "verbe998r");
}

TEST_F(places_of_user_verbs, are_noted_in_lines_of_any_end_and_length) {
  folder_.write("Czasowniki.dat",
                std::string(200'000, 'x') + "\n" + lineOf("erster") + "\n" + lineOf("laster"));
  verbs_.startWith(4);
  for (int time = 0; time < 2; ++time) {
    EXPECT_TRUE(verbs_.load("laster", forms_, storedAux_));
    EXPECT_TRUE(verbs_.load("erster", forms_, storedAux_));
  }
}

TEST_F(places_of_user_verbs, show_every_record_that_may_be_found) {
  writeVerbs(0);
  verbs_.startWith(3);
  std::vector<std::string> shown;
  verbs_.forEach([&](const engine::FormTable& forms, std::uint8_t auxiliary) {
    shown.push_back(forms[engine::slot::kInfinitive]);
    EXPECT_EQ(auxiliary, engine::kAvoir);
  });
  EXPECT_EQ(shown, (std::vector<std::string>{"verbe0r", "verbe1r", "verbe2r"}));
}

}  // namespace
}  // namespace odmiennik::dictionary
