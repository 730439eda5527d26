// SPDX-License-Identifier: GPL-3.0-or-later
// What the build makes of the forms of all verbs of the index.
#pragma once

#include <cstdint>

#include "finder/places.h"

namespace odmiennik::finder::data {

// Verbs that put the same endings behind their stems at the same places conjugate alike: they are
// of one paradigm. A stem is what all forms of a verb begin with, and so the beginning of its
// infinitive.

// An ending of a paradigm; those that are the same without accents stand together.
struct Ending {
  std::uint16_t paradigm;
  std::uint16_t places;   // position in kPlaces
  std::uint16_t letters;  // position in kEndingLetters
  std::uint8_t size;
  bool isLast;  // of those that are the same without accents
};

struct PlacesOfForm {
  Places system, norm;
};

// What is known of the verbs of a paradigm beside their simple forms.
struct Paradigm {
  CompoundSlots system, norm;  // the compound slots that hold a form
  bool takesAvoir, takesEtre;
  bool isPronominal;
  bool agrees;  // the participle has a feminine and a plural
};

// A place of a hash table: a position + 1, 0 where it is empty, and more of the hash, so that a
// stranger is seldom looked at.
struct Hashed {
  std::uint16_t position;
  std::uint16_t print;
};

extern const std::uint8_t kStemSize[];  // a verb each, in the order of the verb index
extern const std::uint16_t kParadigmOfVerb[];
extern const std::uint16_t kRankOfVerb[];  // the most frequent verb is 0, an unlisted one last
extern const Paradigm kParadigms[];
extern const PlacesOfForm kPlaces[];
extern const Ending kEndings[];
extern const char kEndingLetters[];
extern const Hashed kStems[];  // positions of verbs by the hash of their stems
extern const std::uint32_t kStemsSize;
extern const Hashed kFirstEndings[];  // positions in kEndings by the hash of ending and paradigm
extern const std::uint32_t kFirstEndingsSize;
extern const std::uint64_t kSomeEnding[256];  // a bit for the hash of each ending of any paradigm

extern const std::uint64_t kSomeStem[1024];  // a bit for the mixed hash of each stem

inline constexpr std::uint32_t kSomeStemBits = 1024 * 64;
[[nodiscard]] constexpr std::uint32_t bitOfStem(std::uint32_t hash) { return hash % kSomeStemBits; }

inline constexpr std::uint32_t kSomeEndingBits = 256 * 64;
[[nodiscard]] constexpr std::uint32_t bitOfEnding(std::uint32_t hash) {
  return (hash ^ (hash >> 16)) % kSomeEndingBits;
}

}  // namespace odmiennik::finder::data
