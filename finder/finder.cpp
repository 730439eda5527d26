// SPDX-License-Identifier: GPL-3.0-or-later
// The look-up of a form.
#include "finder/finder.h"

#include <algorithm>
#include <tuple>

#include "dictionary/verb_index.h"
#include "finder/fitting.h"
#include "finder/form_index.h"

namespace odmiennik::finder {
namespace {

constexpr std::size_t kShortestSlip = 3;  // of shorter words half the language is a slip away
constexpr std::size_t kMostSlips = 24;    // readings

// Calls `take` with every word one slip away from `word`: a letter left out, changed round with its
// neighbour, wrong, or missing.
template <typename Take>
void forEachSlip(std::string_view word, Take take) {
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz";
  std::string slip;
  for (std::size_t i = 0; i < word.size(); ++i) {
    take(slip.assign(word).erase(i, 1));
    slip.assign(word);
    if (i + 1 < word.size() && word[i] != word[i + 1]) {
      std::swap(slip[i], slip[i + 1]);
      take(slip);
      slip.assign(word);
    }
    for (const char letter : kLetters)
      if (letter != word[i]) take((slip[i] = letter, slip));
  }
  for (std::size_t i = 0; i <= word.size(); ++i)
    for (const char letter : kLetters)
      if (i == word.size() || letter != word[i]) take(slip.assign(word).insert(i, 1, letter));
}

auto orderOf(const Reading& reading) {
  return std::tuple(reading.match, reading.rank, !reading.isOwn, reading.verb, reading.isReflexive,
                    reading.slot, std::string_view(reading.form), reading.agreed);
}

// The places of one form stand in their order already.
void sortAndDropRepeated(Readings& readings) {
  const bool isInOrder =
      std::ranges::adjacent_find(readings, std::ranges::greater_equal(), orderOf) == readings.end();
  if (isInOrder) return;
  std::ranges::sort(readings, {}, orderOf);
  const auto isRepeated = [](const Reading& one, const Reading& other) {
    return orderOf(one) == orderOf(other);
  };
  readings.erase(std::unique(readings.begin(), readings.end(), isRepeated), readings.end());
}

// What is spelt just so stands alone.
void dropOtherAccents(Readings& readings) {
  if (readings.empty() || readings.front().match != Match::exact) return;
  std::erase_if(readings, [](const Reading& one) { return one.match != Match::exact; });
}

}  // namespace

void Finder::find(std::string_view typed, Readings& readings) {
  readings.clear();
  phrases_.read(typed);
  for (const Phrase& phrase : phrases_.all()) readPhrase(phrase, readings);
  if (readings.empty())
    for (const Phrase& phrase : phrases_.all()) readSlips(phrase, readings);
  sortAndDropRepeated(readings);
  const bool mayLackAccents = !phrases_.hasAccents();  // by someone who types none
  if (!mayLackAccents) dropOtherAccents(readings);
  const bool areSlips = !readings.empty() && readings.front().match == Match::slip;
  if (areSlips && readings.size() > kMostSlips) readings.resize(kMostSlips);
}

void Finder::readPhrase(const Phrase& phrase, Readings& readings) {
  words_.clear();
  auxiliaries_.clear();
  findWord(phrase.word, words_);
  if (!phrase.auxiliary.empty()) findWord(phrase.auxiliary, auxiliaries_);
  append(phrase, readings);
}

// One slip in the whole phrase, in a word that is no form by itself: what is spelt well and only
// does not go together has another fault.
void Finder::readSlips(const Phrase& phrase, Readings& readings) {
  const auto findSlipsOf = [this](std::string_view word, std::vector<Candidate>& found) {
    found.clear();
    findWord(word, found);
    const bool isUnknown = found.empty();
    if (isUnknown) findSlips(word, found);
    return isUnknown;
  };
  const bool isWordUnknown = findSlipsOf(phrase.word, words_);
  auxiliaries_.clear();
  bool isAuxiliaryUnknown = false;
  if (!phrase.auxiliary.empty()) isAuxiliaryUnknown = findSlipsOf(phrase.auxiliary, auxiliaries_);
  if (isWordUnknown != isAuxiliaryUnknown) append(phrase, readings);
}

void Finder::append(const Phrase& phrase, Readings& readings) {
  for (const Candidate& word : words_) {
    if (phrase.auxiliary.empty()) {
      appendSimple(phrase, word, readings);
      continue;
    }
    for (const Candidate& auxiliary : auxiliaries_)
      if (isAuxiliary(auxiliary)) appendCompound(phrase, auxiliary, word, readings);
  }
}

void Finder::findWord(std::string_view word, std::vector<Candidate>& found) {
  const Folded folded(word, phrases_.hasAccents());
  if (!folded.isTooLong()) findFolded(folded.text(), word, found);
}

void Finder::findSlips(std::string_view word, std::vector<Candidate>& found) {
  const Folded folded(word);
  if (folded.isTooLong() || folded.text().size() < kShortestSlip) return;
  forEachSlip(folded.text(), [&](std::string_view slip) {
    if (slip.size() > kLongestWord) return;
    const std::size_t first = found.size();
    findFolded(slip, slip, found);
    for (std::size_t i = first; i < found.size(); ++i) found[i].match = Match::slip;
  });
}

// deliberate: the compound tenses are made of the program's own avoir and être, whatever the user
// has saved for these two; his own are found as simple forms.
void Finder::findFolded(std::string_view folded, std::string_view word,
                        std::vector<Candidate>& found) {
  const bool isOfAuxiliary = &found == &auxiliaries_;
  forEachForm(word, folded, [&](const FoundForm& form) {
    const std::string_view verb = dictionary::verbAt(form.verb);
    if (!isOfAuxiliary && own_.has(verb)) return;
    found.push_back({.verb = verb,
                     .stem = form.stem,
                     .ending = form.ending,
                     .places = form.places,
                     .facts = form.paradigm(),
                     .rank = form.row().rank,
                     .match = form.isExact ? Match::exact : Match::accents});
  });
  if (isOfAuxiliary) return;
  const std::size_t first = found.size();
  own_.find(folded, found);
  for (std::size_t i = first; i < found.size(); ++i)
    found[i].match = found[i].stem == word ? Match::exact : Match::accents;
}

}  // namespace odmiennik::finder
