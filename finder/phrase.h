// SPDX-License-Identifier: GPL-3.0-or-later
// A form with what may stand around it: "que", pronouns, an auxiliary.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/flags.h"

namespace odmiennik::finder {

// Persons as bits: je 1, tu 2, il 4, nous 8, vous 16, ils 32.
using Persons = std::uint8_t;
inline constexpr Persons kAnyPerson = 0x3F;

// One way to read a phrase. Views are those of the phrase's own text.
struct Phrase {
  std::string_view auxiliary;  // empty where a simple form stands
  std::string_view word;       // the form, or the participle
  Persons persons = kAnyPerson;
  bool hasSubject = false;  // then it is no imperative
  bool isReflexive = false;
  bool isImperative = false;   // its pronoun hangs behind: lave-toi
  bool isSubordinate = false;  // behind "que"
  engine::Adverb adverb = engine::Adverb::none;
};

// What was typed, taken apart.
class Phrases {
 public:
  // Reads Windows-1252 text: "  Qu’il eût  fini" -> "eût", "fini", of il, behind "que". There may
  // be two ways ("lavez-vous") or none ("le chat").
  void read(std::string_view typed);

  [[nodiscard]] const std::vector<Phrase>& all() const { return phrases_; }
  // The whole text as it was read: lower case, blanks single, elided words parted.
  [[nodiscard]] std::string_view text() const { return text_; }
  // Whether a letter of the text has an accent.
  [[nodiscard]] bool hasAccents() const { return hasAccents_; }

 private:
  void cutIntoWords();
  void readWords();
  void readVerb(Phrase phrase, std::size_t next);
  [[nodiscard]] std::size_t takeReflexive(Phrase& phrase, std::size_t next) const;

  std::string text_;
  std::vector<std::string_view> words_;
  std::vector<Phrase> phrases_;
  bool hasAccents_ = false;
};

}  // namespace odmiennik::finder
