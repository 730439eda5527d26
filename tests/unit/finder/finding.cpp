// SPDX-License-Identifier: GPL-3.0-or-later
// Answers of the finder as texts.
#include "tests/unit/finder/finding.h"

#include <algorithm>

#include "engine/windows1252.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

using finder::Reading;

std::string lineOf(const Reading& reading) {
  const engine::Tense& tense = engine::tenseOf(reading.slot);
  std::string line = testing::utf8(finder::phraseOf(reading)) + " | " +
                     testing::utf8(finder::infinitiveOf(reading)) + " | " +
                     std::string(bytesOf(tense.mood)) + " " + std::string(bytesOf(tense.name));
  constexpr const char* kAgreements[] = {"", " f", " mp", " fp"};
  line += kAgreements[static_cast<int>(reading.agreed)];
  if (!reading.isInNorm) line += " system";
  if (!reading.isInSystem) line += " norm";
  constexpr const char* kMatches[] = {"", " accents", " slip"};
  return line + kMatches[static_cast<int>(reading.match)];
}

}  // namespace

const finder::Readings& Finding::readingsOf(std::string_view typed) {
  finder_.lookAgain();
  finder_.find(french(typed), readings_);
  return readings_;
}

Lines Finding::find(std::string_view typed) {
  Lines lines;
  for (const Reading& reading : readingsOf(typed)) lines.push_back(lineOf(reading));
  return lines;
}

Lines Finding::verbsOf(std::string_view typed) {
  Lines verbs;
  for (const Reading& reading : readingsOf(typed)) {
    const std::string verb = testing::utf8(finder::infinitiveOf(reading));
    if (std::ranges::find(verbs, verb) == verbs.end()) verbs.push_back(verb);
  }
  return verbs;
}

void Finding::save(std::string_view infinitive, const std::map<int, std::string_view>& forms) {
  ASSERT_NE(userVerbs_.save(verb(infinitive, forms)), dictionary::SaveResult::failed);
}

}  // namespace odmiennik::testing
