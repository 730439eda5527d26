// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: any phrase taken apart and looked for; what is found is found again as it is said.
#include <algorithm>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "dictionary/user_verbs.h"
#include "engine/slots.h"
#include "finder/finder.h"
#include "tests/fuzz/fuzz_input.h"

namespace odmiennik::testing {
namespace {

using finder::Phrase;
using finder::Reading;
using finder::Readings;

struct NoMessages final : dictionary::MessageBoxes {
  dictionary::Button show(dictionary::MessageId, Utf8View) override {
    return dictionary::Button::ok;
  }
};

bool isPartOf(std::string_view part, std::string_view whole) {
  return part.empty() ||
         (part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size());
}

void requireToBeAPhrase(const Phrase& phrase, std::string_view text) {
  require(!phrase.word.empty(), "a phrase has a word");
  require(isPartOf(phrase.word, text) && isPartOf(phrase.auxiliary, text),
          "the words are those of the text");
  require(phrase.persons != 0, "somebody is meant");
  require(!(phrase.isImperative && phrase.hasSubject), "an imperative has no subject");
  require(!(phrase.isImperative && phrase.isSubordinate), "an imperative follows no que");
  require(phrase.adverb == engine::Adverb::none || phrase.isReflexive,
          "en and y belong to a reflexive verb");
}

auto fieldsOf(const Phrase& phrase) {
  return std::tuple(phrase.auxiliary, phrase.word, phrase.persons, phrase.hasSubject,
                    phrase.isReflexive, phrase.isImperative, phrase.isSubordinate, phrase.adverb);
}

// Read again, the text is taken apart in the same way.
void readPhrases(std::string_view typed) {
  finder::Phrases first, second;
  first.read(typed);
  second.read(first.text());
  require(first.text() == second.text(), "the text is read as it was understood");
  require(std::ranges::equal(first.all(), second.all(), {}, fieldsOf, fieldsOf),
          "the same text holds the same phrases");
  for (const Phrase& phrase : first.all()) requireToBeAPhrase(phrase, first.text());
}

void requireToBeAReading(const Reading& reading) {
  require(reading.slot >= 0 && reading.slot < engine::kSlotCount, "a reading has a slot");
  require(!reading.form.empty() && !reading.verb.empty(), "a reading has a form of a verb");
  require(reading.isInSystem || reading.isInNorm, "somebody has the form");
}

// Whatever differs by a slip or an accent, the phrase that is shown is spelt well.
void requireToBeFoundAgain(finder::Finder& finder, const Reading& reading) {
  Readings again;
  finder.find(finder::phraseOf(reading), again);
  const bool isFound = std::ranges::any_of(again, [&](const Reading& one) {
    return one.verb == reading.verb && one.slot == reading.slot && one.form == reading.form;
  });
  require(isFound, "what is found is found again as it is said");
}

void find(std::string_view typed) {
  static NoMessages messages;
  static dictionary::UserVerbsFile userVerbs("/there/is/no/such/folder/", 0, messages);
  static finder::Finder finder(userVerbs);
  Readings readings;
  finder.find(typed, readings);
  for (const Reading& reading : readings) {
    requireToBeAReading(reading);
    requireToBeFoundAgain(finder, reading);
  }
}

}  // namespace
}  // namespace odmiennik::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace odmiennik::testing;
  const std::string_view typed(reinterpret_cast<const char*>(data), size);
  readPhrases(typed);
  find(typed);
  return 0;
}
