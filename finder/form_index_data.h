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

struct Verb {
  std::uint16_t paradigm;
  std::uint16_t rank;  // the most frequent verb is 0, an unlisted one last
  std::uint8_t stemSize;
};

// A row of a hash table: a position, and more of its hash, so that a stranger is seldom looked at.
struct Hashed {
  std::uint16_t position;
  std::uint16_t print;
};

// The rows of a hash stand side by side: those from first[hash >> shift] to the next one.
struct HashTable {
  const std::uint16_t* first;
  const Hashed* rows;
  std::uint32_t shift;
};
inline constexpr std::uint32_t kPrintBits = 0xFFFF;

extern const Verb kVerbs[];  // in the order of the verb index
extern const Paradigm kParadigms[];
extern const PlacesOfForm kPlaces[];
extern const Ending kEndings[];
extern const char kEndingLetters[];
extern const HashTable kStems;         // positions of verbs by the hash of their stems
extern const HashTable kFirstEndings;  // positions in kEndings by the hash of ending and paradigm
// A bit for the hash of each ending of any paradigm, and of each stem.
inline constexpr int kSomeEndingBits = 14, kSomeStemBits = 16;
extern const std::uint64_t kSomeEnding[(1 << kSomeEndingBits) / 64];
extern const std::uint64_t kSomeStem[(1 << kSomeStemBits) / 64];
[[nodiscard]] constexpr std::uint32_t bitOfEnding(std::uint32_t hash) {
  return hash >> (32 - kSomeEndingBits);
}
[[nodiscard]] constexpr std::uint32_t bitOfStem(std::uint32_t hash) {
  return hash >> (32 - kSomeStemBits);
}

}  // namespace odmiennik::finder::data
