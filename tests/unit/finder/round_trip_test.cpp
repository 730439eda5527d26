// SPDX-License-Identifier: GPL-3.0-or-later
// Every form that the engine has for a verb of the index leads back to it.
#include <algorithm>

#include "dictionary/verb_index.h"
#include "engine/pronouns.h"
#include "engine/windows1252.h"
#include "finder/bare_forms.h"
#include "tests/support/test_program.h"
#include "tests/unit/finder/finding.h"

namespace odmiennik::testing {
namespace {

class round_trip : public Finding {
 protected:
  bool leadsBack(std::string_view phrase, std::string_view verb, int slot, bool isNorm) {
    finder_.find(phrase, readings_);
    return std::ranges::any_of(readings_, [&](const finder::Reading& reading) {
      return reading.verb == verb && reading.slot == slot &&
             reading.match == finder::Match::exact &&
             (isNorm ? reading.isInNorm : reading.isInSystem);
    });
  }
};

// The texts that a slot of one word stands for, taken apart here once more.
Lines wordsOf(int slot, std::string_view text) {
  Lines words;
  while (!text.empty()) {
    const auto end = std::min(text.find_first_of("/,;"), text.size());
    std::string_view part = text.substr(0, end);
    while (part.starts_with(' ')) part.remove_prefix(1);
    part = engine::withoutOwnReflexive(slot, part);
    if (part.ends_with("(e)")) part.remove_suffix(3);
    if (!part.empty() && part != "-- ") words.emplace_back(part);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return words;
}

// What stands behind a participle that agrees, and what it stands for.
struct Marker {
  std::string_view text;
  std::vector<std::string> ends;
};
const std::vector<Marker> kMarkers{{"(e)(s)", {"", "e", "s", "es"}},
                                   {"(e, es)", {"", "e", "es"}},
                                   {"(e)s", {"s", "es"}},
                                   {"(es)", {"", "es"}},
                                   {"(e)", {"", "e"}},
                                   {"(s)", {"", "s"}},
                                   {"", {""}}};

// "allé(e)s" -> "allés", "allées"; "dû/due(s)" -> "dû", "due", "dues"; of "dissous/-te" the first.
Lines participlesOf(std::string_view marked) {
  Lines participles;
  while (!marked.empty()) {
    const auto bar = std::min(marked.find('/'), marked.size());
    const std::string_view part = marked.substr(0, bar);
    const auto marker =
        std::ranges::find_if(kMarkers, [&](const Marker& one) { return part.ends_with(one.text); });
    for (const std::string& end : marker->ends)
      if (!part.starts_with('-'))
        participles.push_back(std::string(part.substr(0, part.size() - marker->text.size())) + end);
    marked.remove_prefix(std::min(bar + 1, marked.size()));
  }
  return participles;
}

// The phrases that a compound slot stands for, with the pronouns that the window shows.
Lines phrasesOf(int slot, const engine::Display& shown) {
  std::string before;
  if (slot < engine::kPersonalSlotCount) before = shown.pronouns[static_cast<std::size_t>(slot)];
  if (!before.empty() && !before.ends_with('\'')) before += ' ';
  before += shown.boxes[static_cast<std::size_t>(slot)];
  if (before.find(engine::kShownMissing) != std::string::npos) return {};
  const bool isWide = before.ends_with("(e, es)");
  const auto blank = before.find_last_of(' ', before.size() - (isWide ? 7 : 1));
  Lines phrases;
  for (const std::string& participle : participlesOf(std::string_view(before).substr(blank + 1)))
    phrases.push_back(before.substr(0, blank + 1) + participle);
  return phrases;
}

// The sanitizers make every step of it slow: there a part of the verbs has to do.
#ifdef __SANITIZE_ADDRESS__
constexpr int kStep = 17;
#else
constexpr int kStep = 1;
#endif

// Every verb of the index, conjugated in a variety.
template <typename Check>
void forEveryVerb(bool isNorm, Check check) {
  TestProgram program;
  if (isNorm) program.followNorm();
  for (int position = 0; position < dictionary::verbCount(); position += kStep) {
    const std::string_view verb = dictionary::verbAt(position);
    program.conjugate(testing::utf8(verb));
    check(verb, program.state());
  }
}

TEST_F(round_trip, of_every_simple_form_in_either_variety_gives_its_verb) {
  for (const bool isNorm : {false, true}) {
    int count = 0;
    forEveryVerb(isNorm, [&](std::string_view verb, const engine::Conjugation& conjugation) {
      for (const std::int8_t slot : finder::kSimpleSlots)
        for (const std::string& word : wordsOf(slot, conjugation.forms[slot])) {
          ++count;
          EXPECT_TRUE(leadsBack(word, verb, slot, isNorm))
              << testing::utf8(word) << " of " << testing::utf8(verb) << ", slot " << int{slot};
        }
    });
    EXPECT_GT(count, 340'000 / kStep);
  }
}

TEST_F(round_trip, of_every_compound_form_in_either_variety_gives_its_verb) {
  for (const bool isNorm : {false, true}) {
    int count = 0;
    forEveryVerb(isNorm, [&](std::string_view verb, const engine::Conjugation& conjugation) {
      for (int slot = 0; slot < engine::kSlotCount; ++slot) {
        if (!finder::isCompound(slot)) continue;
        for (const std::string& phrase : phrasesOf(slot, conjugation.shown)) {
          ++count;
          EXPECT_TRUE(leadsBack(phrase, verb, slot, isNorm))
              << testing::utf8(phrase) << " of " << testing::utf8(verb) << ", slot " << slot;
        }
      }
    });
    EXPECT_GT(count, 380'000 / kStep);
  }
}

}  // namespace
}  // namespace odmiennik::testing
