// SPDX-License-Identifier: GPL-3.0-or-later
// The user's own verbs seen from the driver.
#include <gtest/gtest.h>

#include "dictionary/builtin_verbs.h"
#include "dictionary/user_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/driver.h"
#include "engine/windows1252.h"
#include "groups/rules.h"
#include "tests/support/test_program.h"
#include "tests/unit/dictionary/program_files.h"

namespace odmiennik::dictionary {
namespace {

using odmiennik::testing::french;
using odmiennik::testing::verb;

struct SilentShell final : engine::Shell {
  void show(engine::Notice) override {}
  void resetSettings() override {}
};

class UserVerbsInTheDriver : public ::testing::Test {
 protected:
  std::string slot(std::string_view typed, int number) {
    engine::Driver driver({index_, verbs_, builtin_, rules_, shell_});
    driver.conjugate(conjugation_, french(typed));
    return testing::utf8(conjugation_.forms[number]);
  }

  odmiennik::testing::ProgramFolder folder_;
  odmiennik::testing::RecordedMessages messages_;
  UserVerbsFile verbs_{folder_.prefix(), 0, messages_};
  GeneralVerbIndex index_;
  BuiltinVerbTable builtin_;
  groups::VerbGroups rules_;
  SilentShell shell_;
  engine::Conjugation conjugation_;
};

TEST_F(UserVerbsInTheDriver, a_user_verb_wins_over_the_built_in_one) {
  EXPECT_EQ(slot("avoir", 0), "ai");
  verbs_.save(verb("avoir", {{0, "hai"}}));
  EXPECT_EQ(slot("avoir", 0), "hai");
  EXPECT_EQ(conjugation_.source, engine::Source::user);
}

TEST_F(UserVerbsInTheDriver, a_participle_with_a_comma_spoils_neither_rules_nor_the_next_verb) {
  verbs_.save(verb("devoir", {{0, "dois"}, {24, "*"}, {99, "dû, due"}, {100, "ayant dû"}}));
  verbs_.save(verb("tartempionner", {{0, "tartempionne"}, {99, "tartempionné"}}));
  EXPECT_EQ(slot("parler", 0), "parle");
  EXPECT_EQ(slot("tartempionner", 0), "tartempionne");
  EXPECT_EQ(slot("tartempionner", 99), "tartempionné");
  EXPECT_EQ(slot("devoir", 24), "ai dû");
}

TEST_F(UserVerbsInTheDriver, a_deleted_verb_is_conjugated_by_rule_again) {
  verbs_.save(verb("parler", {{0, "parloue"}}));
  EXPECT_EQ(slot("parler", 0), "parloue");
  verbs_.remove("parler");
  EXPECT_EQ(slot("parler", 0), "parle");
}

}  // namespace
}  // namespace odmiennik::dictionary
