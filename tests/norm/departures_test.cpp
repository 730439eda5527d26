// SPDX-License-Identifier: GPL-3.0-or-later
// Every form of the index in which the system departs from the norm.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "dictionary/verb_index.h"
#include "engine/windows1252.h"
#include "tests/support/form_layout.h"
#include "tests/support/golden_file.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

constexpr int kIlsWouldHave = 83;

using Phrases = std::array<std::string, engine::kSlotCount>;

Phrases phrasesOf(TestProgram& program, const std::string& verb) {
  program.conjugate(verb);
  Phrases phrases;
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const std::string pronoun =
        slot < engine::kPersonalSlotCount ? program.pronoun(slot) + " " : "";
    phrases[static_cast<std::size_t>(slot)] = pronoun + program.box(slot);
  }
  return phrases;
}

// The conditional of avoir is the same for thousands of verbs: counted, not listed.
bool isWouldHave(int slot, const std::string& system, std::string norm) {
  const auto end = norm.find("auraient");
  if (slot != kIlsWouldHave || end == std::string::npos) return false;
  return system == norm.replace(end, 8, "aurainet");
}

TEST(departures, of_the_index_are_the_golden_ones) {
  TestProgram system, inNorm;
  inNorm.followNorm();
  std::string departures;
  int wouldHave = 0;
  for (int position = 0; position < dictionary::verbCount(); ++position) {
    const std::string verb = testing::utf8(dictionary::verbAt(position));
    const Phrases ours = phrasesOf(system, verb), norm = phrasesOf(inNorm, verb);
    std::string lines;
    for (int slot = 0; slot < engine::kSlotCount; ++slot) {
      const auto i = static_cast<std::size_t>(slot);
      if (ours[i] == norm[i]) continue;
      if (isWouldHave(slot, ours[i], norm[i]))
        ++wouldHave;
      else
        lines += nameOfSlot(slot) + ": " + ours[i] + " > " + norm[i] + "\n";
    }
    if (!lines.empty()) departures += "verb " + verb + "\n" + lines;
  }
  departures += "verb *\nils aurainet: " + std::to_string(wouldHave) + "\n";
  expectGolden("departures.txt", departures);
}

}  // namespace
}  // namespace odmiennik::testing
