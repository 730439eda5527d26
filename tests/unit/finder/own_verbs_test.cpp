// SPDX-License-Identifier: GPL-3.0-or-later
// The user's own verbs among what is found.
#include "tests/support/test_program.h"
#include "tests/unit/finder/finding.h"

namespace odmiennik::testing {
namespace {

class finding_own_verbs : public Finding {};

TEST_F(finding_own_verbs, are_found_by_their_forms) {
  save("bloguer", {{0, "blogue"}, {99, "blogué"}, {24, "*"}});
  EXPECT_EQ(find("blogue").front(), "je blogue | bloguer | Indicatif présent");
  EXPECT_TRUE(readings_.front().isOwn);
  EXPECT_EQ(find("bloguer"), Lines{"bloguer | bloguer | Infinitif présent"});
  EXPECT_EQ(find("j'ai blogué"), Lines{"j'ai blogué | bloguer | Indicatif passé composé"});
}

TEST_F(finding_own_verbs, win_over_those_of_the_program) {
  save("parler", {{0, "parrle"}});
  EXPECT_EQ(find("parrle"), Lines{"je parrle | parler | Indicatif présent"});
  for (const finder::Reading& reading : readingsOf("parlons")) EXPECT_NE(reading.verb, "parler");
}

TEST_F(finding_own_verbs, are_found_once_they_are_saved_and_no_longer_once_deleted) {
  EXPECT_EQ(find("zzblogue"), Lines{});
  save("zzbloguer", {{0, "zzblogue"}});
  EXPECT_EQ(verbsOf("zzblogue"), Lines{"zzbloguer"});
  ASSERT_EQ(userVerbs_.remove("zzbloguer"), dictionary::DeleteResult::deleted);
  EXPECT_EQ(find("zzblogue"), Lines{});
}

TEST_F(finding_own_verbs, are_found_without_accents_and_reflexive_ones_as_such) {
  save("se zézailler", {{0, "me zézaille"}});
  EXPECT_EQ(find("zezaille"), Lines{"je me zézaille | se zézailler | Indicatif présent accents"});
  EXPECT_EQ(find("je me zézaille"), Lines{"je me zézaille | se zézailler | Indicatif présent"});
}

TEST_F(finding_own_verbs, of_avoir_do_not_change_the_compound_tenses_of_others) {
  save("avoir", {{0, "aie"}});
  EXPECT_EQ(verbsOf("j'ai mangé"), Lines{"manger"});
}

}  // namespace
}  // namespace odmiennik::testing
