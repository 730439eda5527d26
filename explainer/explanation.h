// SPDX-License-Identifier: GPL-3.0-or-later
// The explanation of a form: remarks out of a closed vocabulary.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "data/explanations.h"
#include "engine/utf8.h"

namespace odmiennik::explainer {

// A phrase, filled in: "końcówka -ons".
struct Remark {
  PhraseId phrase;
  Utf8Text text;
};

using Remarks = std::vector<Remark>;

// Adds the phrase with French texts (Windows-1252) in the places of {1}, {2} and {3}.
void add(Remarks& remarks, PhraseId phrase, std::initializer_list<std::string_view> french = {});

// The same with texts in UTF-8: names of rules, tenses and verbs, as the tables have them.
void addNamed(Remarks& remarks, PhraseId phrase, std::initializer_list<Utf8View> texts);

[[nodiscard]] inline const PhraseRow& rowOf(PhraseId phrase) {
  return kPhrases[static_cast<std::size_t>(phrase)];
}

// What is told of a form. Without a form it says why there is none.
struct Explanation {
  int slot = 0;
  std::string phrase;  // the form with its pronoun in full, "nous mangeons"; empty without a form
  Remarks remarks;
  // Today's norm where it has another form: what it has, and how that came to be.
  bool isDeparting = false;
  std::string normPhrase;
  Remarks normRemarks;
};

// The remarks of one part in a row, parts parted by semicolons: "reguła -ger (wzór: manger); temat
// mang-, e przed o, końcówka -ons".
[[nodiscard]] Utf8Text sentenceOf(const Remarks& remarks);

// The remarks of each part, a line a part: what a window shows.
[[nodiscard]] std::vector<Utf8Text> linesOf(const Remarks& remarks);

// What there is to say of today's norm; empty where nothing departs: "dzisiejsza norma: il lit: …".
[[nodiscard]] Utf8Text normSentenceOf(const Explanation& explanation);

}  // namespace odmiennik::explainer
