// SPDX-License-Identifier: GPL-3.0-or-later
// What a form may be: the answer to a look-up.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "engine/flags.h"
#include "engine/utf8.h"
#include "finder/places.h"

namespace odmiennik::finder {

// How the form found differs from what was typed.
enum class Match : std::uint8_t {
  exact,
  accents,  // by its accents alone
  slip,     // by one letter too few, too many, wrong, or changed round with its neighbour
};

inline constexpr std::uint16_t kUnranked = std::numeric_limits<std::uint16_t>::max();

struct Reading {
  std::string_view verb;  // Windows-1252, without its reflexive pronoun; holds until the next look
  std::string form;       // as the table has it, without subject and reflexive pronoun
  std::int16_t slot = 0;
  Agreed agreed = Agreed::masculine;  // of a form that has a participle
  bool hasParticiple = false;
  bool isReflexive = false;
  bool isOwn = false;  // one of the user's own verbs
  bool isInSystem = false;
  bool isInNorm = false;
  engine::Adverb adverb = engine::Adverb::none;  // s'en aller
  Match match = Match::exact;
  std::uint16_t rank = kUnranked;  // frequent verbs first

  bool operator==(const Reading&) const = default;
};

using Readings = std::vector<Reading>;

// The infinitive as one would type it: "laver", "se laver", "s'en aller", "se haïr".
[[nodiscard]] std::string infinitiveOf(const Reading& reading);

// The form as it is said, with its pronouns, Windows-1252: "que nous allions", "j'aurais mangé",
// "nous nous sommes lavés", "va-t'en".
[[nodiscard]] std::string phraseOf(const Reading& reading);

// Where the form stands and what else there is to say of it, in Polish, UTF-8: "Indicatif présent,
// je", "Participe passé; r. ż. l. mn.", "Conditionnel présent, ils; tylko w normie", "…; własny".
[[nodiscard]] Utf8Text placeInWords(const Reading& reading);

// What is said above readings that are not spelt as typed, in Polish; nothing above others.
[[nodiscard]] Utf8View headingOf(Match match);

}  // namespace odmiennik::finder
