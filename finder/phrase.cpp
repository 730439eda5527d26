// SPDX-License-Identifier: GPL-3.0-or-later
// Taking phrases apart.
#include "finder/phrase.h"

#include <algorithm>
#include <array>
#include <span>

#include "engine/french.h"
#include "engine/normalization.h"

namespace odmiennik::finder {
namespace {

using engine::Adverb;

struct PronounRow {
  std::string_view word;
  Persons persons;
};

constexpr Persons kJe = 1, kTu = 2, kIl = 4, kNous = 8, kVous = 16, kIls = 32;

constexpr PronounRow kSubjects[] = {
    {"je", kJe},     {"j'", kJe},   {"tu", kTu},     {"il", kIl},   {"elle", kIl}, {"on", kIl},
    {"nous", kNous}, {"ns", kNous}, {"vous", kVous}, {"vs", kVous}, {"ils", kIls}, {"elles", kIls}};

constexpr PronounRow kReflexives[] = {
    {"me", kJe},        {"m'", kJe},     {"te", kTu},     {"t'", kTu},   {"se", kIl | kIls},
    {"s'", kIl | kIls}, {"nous", kNous}, {"vous", kVous}, {"ns", kNous}, {"vs", kVous}};

// What hangs behind a verb: the imperative's own pronoun, or the subject of a question.
struct Hanging {
  std::string_view end;
  Persons persons;
  bool isImperative;
  Adverb adverb = Adverb::none;
};
constexpr Hanging kHanging[] = {{"-nous-en", kNous, true, Adverb::en},
                                {"-vous-en", kVous, true, Adverb::en},
                                {"-nous-y", kNous, true, Adverb::y},
                                {"-vous-y", kVous, true, Adverb::y},
                                {"-t'en", kTu, true, Adverb::en},
                                {"-t'y", kTu, true, Adverb::y},
                                {"-toi", kTu, true},
                                {"-nous", kNous, true},
                                {"-vous", kVous, true},
                                {"-t-il", kIl, false},
                                {"-t-elle", kIl, false},
                                {"-t-on", kIl, false},
                                {"-je", kJe, false},
                                {"-tu", kTu, false},
                                {"-il", kIl, false},
                                {"-elle", kIl, false},
                                {"-on", kIl, false},
                                {"-nous", kNous, false},
                                {"-vous", kVous, false},
                                {"-ils", kIls, false},
                                {"-elles", kIls, false}};

// Words that are elided before another one, so that no blank parts them.
constexpr std::string_view kElided[] = {"qu'", "j'", "m'", "t'", "s'"};

// What is asked of a text, a bit each. Without a letter that may part words it is one word.
constexpr unsigned kMayPart = 1, kHasAccent = 2;
constexpr std::array<std::uint8_t, 256> kKindOfLetter = [] {
  std::array<std::uint8_t, 256> kinds{};
  for (const char letter : {' ', '\t', '\'', '-'})
    kinds[static_cast<unsigned char>(letter)] = kMayPart;
  for (std::size_t letter = 0x80; letter < kinds.size(); ++letter) kinds[letter] = kHasAccent;
  return kinds;
}();

// Normalizes the text, and sees in the same go what it is made of: a second one would take 3 % more
// instructions for a form.
unsigned normalizeSeeing(std::string_view typed, std::string& text) {
  text.assign(engine::trimmed(typed));
  unsigned kinds = 0;
  for (char& letter : text) {
    letter = engine::kNormalLetters[static_cast<unsigned char>(letter)];
    kinds |= kKindOfLetter[static_cast<unsigned char>(letter)];
  }
  return kinds;
}

constexpr std::size_t kMostWords = 10;

const PronounRow* rowOf(std::span<const PronounRow> rows, std::string_view word) {
  const auto row = std::ranges::find(rows, word, &PronounRow::word);
  return row == rows.end() ? nullptr : &*row;
}

// "il faut que", "il fallait que", "que", "qu'": how many words they are.
std::size_t wordsBeforeSubject(std::span<const std::string_view> words) {
  const auto isQue = [&](std::size_t at) {
    return at < words.size() && (words[at] == "que" || words[at] == "qu'");
  };
  if (isQue(0)) return 1;
  const bool isNeeded =
      words.size() > 2 && words[0] == "il" && (words[1] == "faut" || words[1] == "fallait");
  return isNeeded && isQue(2) ? 3 : 0;
}

}  // namespace

void Phrases::read(std::string_view typed) {
  phrases_.clear();
  const unsigned kinds = normalizeSeeing(typed, text_);
  hasAccents_ = (kinds & kHasAccent) != 0;
  if ((kinds & kMayPart) == 0) {
    if (!text_.empty()) phrases_.push_back({.word = text_});
    return;
  }
  cutIntoWords();
  readWords();
}

void Phrases::cutIntoWords() {
  words_.clear();
  std::string_view rest = text_;
  while (words_.size() <= kMostWords) {
    const auto first = rest.find_first_not_of(" \t");
    if (first == std::string_view::npos) return;
    rest.remove_prefix(first);
    std::size_t size = std::min(rest.find_first_of(" \t"), rest.size());
    for (const std::string_view elided : kElided)
      if (rest.starts_with(elided) && elided.size() < size) size = elided.size();
    words_.push_back(rest.substr(0, size));
    rest.remove_prefix(size);
  }
}

void Phrases::readWords() {
  Phrase phrase;
  std::size_t next = wordsBeforeSubject(words_);
  phrase.isSubordinate = next > 0;
  const PronounRow* subject = next < words_.size() ? rowOf(kSubjects, words_[next]) : nullptr;
  if (subject != nullptr && next + 1 < words_.size()) {
    phrase.persons = subject->persons;
    phrase.hasSubject = true;
    ++next;
  }
  next = takeReflexive(phrase, next);
  const bool hasAdverb = next + 1 < words_.size() && (words_[next] == "en" || words_[next] == "y");
  if (hasAdverb && phrase.isReflexive)
    phrase.adverb = words_[next] == "en" ? Adverb::en : Adverb::y;
  readVerb(phrase, hasAdverb ? next + 1 : next);
}

// Without a subject "se" may also be that of an infinitive or a participle, which have no person.
std::size_t Phrases::takeReflexive(Phrase& phrase, std::size_t next) const {
  if (next + 1 >= words_.size()) return next;
  const PronounRow* reflexive = rowOf(kReflexives, words_[next]);
  if (reflexive == nullptr || (phrase.persons & reflexive->persons) == 0) return next;
  phrase.persons &= reflexive->persons;
  phrase.isReflexive = true;
  return next + 1;
}

void Phrases::readVerb(Phrase phrase, std::size_t next) {
  const std::size_t count = words_.size() - next;
  if (next >= words_.size() || count > 2) return;
  phrase.word = words_.back();
  if (count == 2) phrase.auxiliary = words_[next];
  phrases_.push_back(phrase);
  const bool mayHang = !phrase.hasSubject && !phrase.isSubordinate;
  if (!mayHang) return;
  for (const Hanging& hanging : kHanging) {
    const std::string_view verb = words_[next];
    if (!verb.ends_with(hanging.end) || verb.size() == hanging.end.size()) continue;
    if (hanging.isImperative && (count == 2 || phrase.isReflexive)) continue;
    Phrase hung = phrase;
    hung.persons &= hanging.persons;
    if (hung.persons == 0) continue;  // "se lave-nous"
    (count == 2 ? hung.auxiliary : hung.word).remove_suffix(hanging.end.size());
    hung.isReflexive = phrase.isReflexive || hanging.isImperative;
    hung.isImperative = hanging.isImperative;
    hung.hasSubject = !hanging.isImperative;
    hung.adverb = hanging.isImperative ? hanging.adverb : phrase.adverb;
    phrases_.push_back(hung);
  }
}

}  // namespace odmiennik::finder
