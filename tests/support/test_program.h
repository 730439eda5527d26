// SPDX-License-Identifier: GPL-3.0-or-later
// The driver put together as in the program, with fakes around it that a test can fill and
// question.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "dictionary/builtin_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/driver.h"
#include "engine/ports.h"
#include "groups/rules.h"

namespace odmiennik::testing {

// Test texts are UTF-8; the engine's are Windows-1252. A letter outside is a mistake of the test.
[[nodiscard]] std::string french(std::string_view utf8);

// The other way, whatever the letters.
[[nodiscard]] std::string utf8(std::string_view french);

// A record of the user-verbs file: slot texts (UTF-8) by slot number, all others empty.
struct UserRecord {
  std::map<int, std::string> slots;
  std::uint8_t auxiliary = engine::kAvoir;
};

// One running program without windows. Example:
//   TestProgram program;
//   program.conjugate("parler");
//   EXPECT_EQ(program.box(0), "parle");
class TestProgram {
 public:
  TestProgram();
  TestProgram(const TestProgram&) = delete;
  TestProgram& operator=(const TestProgram&) = delete;

  // What the program knows, told before conjugating. An empty record: nothing is known of the verb.
  void tellRecord(std::string_view infinitive, std::string_view record);
  void addUserVerb(UserRecord record);
  // Verbs that are built in are left to the rules from now on.
  void forgetBuiltinVerbs() { builtinVerbs_.isForgotten = true; }

  // Today's norm is asked for from now on.
  void followNorm() { conjugation_.variety = engine::Variety::norm; }

  engine::Outcome conjugate(std::string_view typed);
  engine::Outcome edit(std::string_view typed);
  void chooseAuxiliary(std::uint8_t auxiliary, bool isEditing = false);

  // A slot of the form table, the text of a box, the pronoun in front of it, in UTF-8.
  [[nodiscard]] std::string slot(int number) const;
  [[nodiscard]] std::string box(int number) const;
  [[nodiscard]] std::string pronoun(int number) const;
  [[nodiscard]] std::string caption(int number) const;

  // The slots or boxes of a tense in a row: "parle | parles | parle | …".
  [[nodiscard]] std::string tense(int firstSlot) const;
  [[nodiscard]] std::string boxesOfTense(int firstSlot) const;

  [[nodiscard]] const engine::VerbInformation& information() const {
    return conjugation_.information;
  }
  [[nodiscard]] std::uint8_t auxiliary() const { return conjugation_.flags.auxiliary; }
  [[nodiscard]] engine::Conjugation& state() { return conjugation_; }
  [[nodiscard]] const std::vector<engine::Notice>& notices() const { return shell_.notices; }
  [[nodiscard]] int resets() const { return shell_.resets; }
  [[nodiscard]] int indexQuestions() const { return index_.questions; }

 private:
  struct Index final : engine::VerbIndex {
    std::string_view record(std::string_view infinitive) override;
    dictionary::GeneralVerbIndex general;
    std::map<std::string, std::string, std::less<>> told;
    int questions = 0;
  };
  struct UserVerbs final : engine::UserVerbs {
    bool load(std::string_view infinitive, engine::FormTable& forms,
              std::uint8_t& storedAux) override;
    std::vector<UserRecord> records;
  };
  struct BuiltinVerbs final : engine::BuiltinVerbs {
    bool load(std::string_view key, engine::FormTable& forms) const override;
    dictionary::BuiltinVerbTable table;
    bool isForgotten = false;
  };
  struct Shell final : engine::Shell {
    void show(engine::Notice notice) override { notices.push_back(notice); }
    void resetSettings() override { ++resets; }
    std::vector<engine::Notice> notices;
    int resets = 0;
  };

  Index index_;
  UserVerbs userVerbs_;
  BuiltinVerbs builtinVerbs_;
  groups::VerbGroups rules_;
  Shell shell_;
  engine::Driver driver_;
  engine::Conjugation conjugation_;
};

}  // namespace odmiennik::testing
