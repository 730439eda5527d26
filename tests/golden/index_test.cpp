// SPDX-License-Identifier: GPL-3.0-or-later
// The whole verb index: the 101 boxes of all verbs against the golden snapshot.
#include <gtest/gtest.h>

#include "engine/windows1252.h"
#include "tests/golden/index_snapshot.h"
#include "tests/support/form_layout.h"
#include "tests/support/golden_file.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

constexpr std::string_view kPatterns = "index_patterns.txt";
constexpr std::string_view kVerbs = "index_verbs.txt";
constexpr int kShownDifferences = 40;

std::string originOf(const engine::Conjugation& conjugation) {
  switch (conjugation.source) {
    case engine::Source::builtin:
      return "builtin";
    case engine::Source::rule:
      return "rule " + french(bytesOf(conjugation.model));
    case engine::Source::user:
    case engine::Source::none:
      break;
  }
  return "none";
}

VerbSnapshot snapshotOf(TestProgram& program, std::string_view infinitive) {
  program.conjugate(testing::utf8(infinitive));
  const engine::Conjugation& conjugation = program.state();
  VerbSnapshot verb{.infinitive = std::string(infinitive), .origin = originOf(conjugation)};
  verb.elidesJe = conjugation.shown.pronouns[0] == "j'";
  for (std::size_t slot = 0; slot < verb.boxes.size(); ++slot)
    verb.boxes[slot] = conjugation.shown.boxes[slot];
  return verb;
}

std::vector<VerbSnapshot> conjugateIndex() {
  TestProgram program;
  std::vector<VerbSnapshot> verbs;
  for (int position = 0; position < dictionary::verbCount(); ++position)
    verbs.push_back(snapshotOf(program, dictionary::verbAt(position)));
  return verbs;
}

// Reports differences, the first ones in full: a changed rule can touch thousands of verbs.
class Differences {
 public:
  void compare(const std::string& verb, const std::string& place, const std::string& golden,
               const std::string& now) {
    if (golden == now || ++count_ > kShownDifferences) return;
    ADD_FAILURE() << testing::utf8(verb) << ", " << place << "\n  golden: " << testing::utf8(golden)
                  << "\n  now:    " << testing::utf8(now);
  }
  [[nodiscard]] int count() const { return count_; }

 private:
  int count_ = 0;
};

void compareVerbs(const VerbSnapshot& golden, const VerbSnapshot& now, Differences& differences) {
  differences.compare(golden.infinitive, "infinitive", golden.infinitive, now.infinitive);
  differences.compare(golden.infinitive, "origin", golden.origin, now.origin);
  differences.compare(golden.infinitive, "pronoun je", golden.elidesJe ? "j'" : "je",
                      now.elidesJe ? "j'" : "je");
  for (std::size_t slot = 0; slot < golden.boxes.size(); ++slot)
    differences.compare(golden.infinitive, nameOfSlot(static_cast<int>(slot)), golden.boxes[slot],
                        now.boxes[slot]);
}

TEST(golden_index, every_verb_has_the_boxes_of_the_snapshot) {
  const std::vector<VerbSnapshot> verbs = conjugateIndex();
  if (isUpdatingGolden()) {
    const IndexSnapshot snapshot = encode(verbs);
    writeGolden(kPatterns, patternsFile(snapshot));
    writeGolden(kVerbs, verbsFile(snapshot));
  }
  const IndexSnapshot golden = readFiles(readGolden(kPatterns), readGolden(kVerbs));
  ASSERT_EQ(golden.verbs.size(), verbs.size());
  Differences differences;
  for (std::size_t i = 0; i < verbs.size(); ++i)
    compareVerbs(decode(golden.verbs[i], golden), verbs[i], differences);
  EXPECT_EQ(differences.count(), 0) << "if the change is meant, rewrite with "
                                    << "ODMIENNIK_UPDATE_GOLDEN=1 and review the difference";
}

TEST(golden_index, the_snapshot_of_the_verbs_is_the_file_itself) {
  const IndexSnapshot snapshot = encode(conjugateIndex());
  EXPECT_TRUE(patternsFile(snapshot) == readGolden(kPatterns)) << "a pattern that no verb has";
  EXPECT_TRUE(verbsFile(snapshot) == readGolden(kVerbs)) << "a line written by hand";
}

TEST(golden_index, has_all_7342_verbs_in_little_space) {
  const std::string patterns = readGolden(kPatterns);
  const std::string verbs = readGolden(kVerbs);
  EXPECT_EQ(readFiles(patterns, verbs).verbs.size(), 7342U);
  EXPECT_LT(patterns.size() + verbs.size(), 500'000U);
}

TEST(golden_index, every_verb_conjugates) {
  std::vector<std::string> refused;
  for (const VerbSnapshot& verb : conjugateIndex())
    if (verb.origin == "none") refused.push_back(verb.infinitive);
  EXPECT_EQ(refused, std::vector<std::string>{});
}

TEST(golden_index, no_verb_keeps_a_placeholder) {
  for (const VerbSnapshot& verb : conjugateIndex())
    for (std::size_t slot = 0; slot < verb.boxes.size(); ++slot)
      EXPECT_EQ(verb.boxes[slot].find('*'), std::string::npos)
          << testing::utf8(verb.infinitive) << slot;
}

}  // namespace
}  // namespace odmiennik::testing
