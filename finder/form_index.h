// SPDX-License-Identifier: GPL-3.0-or-later
// The simple forms of all verbs of the index, as the build has taken them from the engine.
#pragma once

#include <bit>
#include <string_view>

#include "dictionary/verb_index.h"
#include "finder/form_index_data.h"
#include "finder/letters.h"

namespace odmiennik::finder {

// A verb of which a word is a form.
struct FoundForm {
  std::uint16_t verb = 0;  // position in the verb index
  std::string_view stem;   // Windows-1252; the form is stem and ending
  std::string_view ending;
  data::PlacesOfForm places{};
  bool isExact = false;  // spelt as the word is; otherwise it differs by its accents

  [[nodiscard]] const data::Verb& row() const { return data::kVerbs[verb]; }
  [[nodiscard]] const data::Paradigm& paradigm() const { return data::kParadigms[row().paradigm]; }
};

namespace detail {

[[nodiscard]] inline std::uint64_t bitAt(const std::uint64_t* bits, std::uint32_t bit) {
  return bits[bit / 64] >> (bit % 64) & 1;
}

// Where a word may part into a stem and an ending; the tables of both lie further away than the
// bits. All places are asked before the first one is looked up: what a beginning is cannot be
// foreseen, and a processor that has guessed wrong loses more than the questions cost (a third of a
// look-up's time).
struct Partings {
  explicit Partings(std::string_view folded) {
    const std::size_t size = folded.size();
    std::uint32_t stem = kNoLetters, ending = kNoLetters;
    std::uint64_t stemPlaces = addStem(0, stem), endingPlaces = addEnding(size, ending);
    for (std::size_t i = 1; i <= size; ++i) {
      stemPlaces |= addStem(i, stem = withLetter(stem, folded[i - 1]));
      endingPlaces |= addEnding(size - i, ending = withLetter(ending, folded[size - i]));
    }
    places = stemPlaces & endingPlaces;
  }

  std::uint64_t places;
  std::uint32_t stems[kLongestWord + 1];  // hashes, by where the ending begins
  std::uint32_t endings[kLongestWord + 1];

 private:
  [[nodiscard]] std::uint64_t addStem(std::size_t place, std::uint32_t hash) {
    stems[place] = hash;
    return bitAt(data::kSomeStem, data::bitOfStem(hash)) << place;
  }
  [[nodiscard]] std::uint64_t addEnding(std::size_t place, std::uint32_t hash) {
    endings[place] = hash;
    return bitAt(data::kSomeEnding, data::bitOfEnding(hash)) << place;
  }
};
static_assert(kLongestWord < 64);

// Calls `take` with the positions that a table has under a hash, and seldom with a stranger.
template <typename Take>
void forEachUnder(const data::HashTable& table, std::uint32_t hash, Take take) {
  const std::uint32_t place = hash >> table.shift;
  const std::uint32_t print = hash & data::kPrintBits;
  const data::Hashed* const last = table.rows + table.first[place + 1];
  for (const data::Hashed* row = table.rows + table.first[place]; row != last; ++row)
    if (row->print == print) take(row->position);
}

// Sets `form.isExact`; false where the form is another one without accents too.
[[nodiscard]] bool compare(std::string_view word, std::string_view folded, FoundForm& form);

// Calls `take` for the forms of the verb with an ending of this hash.
template <typename Take>
void takeEndings(std::string_view word, std::string_view folded, std::uint32_t hash,
                 std::uint16_t verb, Take& take) {
  const data::Verb& row = data::kVerbs[verb];
  forEachUnder(data::kFirstEndings, endingOf(hash, row.paradigm), [&](std::uint16_t first) {
    const data::Ending* ending = &data::kEndings[first];
    if (ending->paradigm != row.paradigm) return;
    for (bool isLast = false; !isLast; isLast = (ending++)->isLast) {
      FoundForm form{verb,
                     dictionary::verbAt(verb).substr(0, row.stemSize),
                     {data::kEndingLetters + ending->letters, ending->size},
                     data::kPlaces[ending->places]};
      if (compare(word, folded, form)) take(form);
    }
  });
}

}  // namespace detail

// Calls `take(const FoundForm&)` for each form of a verb of the index that is `word`, accents
// apart; `folded` is the word as Folded makes it.
template <typename Take>
void forEachForm(std::string_view word, std::string_view folded, Take take) {
  const detail::Partings partings(folded);
  for (std::uint64_t places = partings.places; places != 0; places &= places - 1) {
    const int place = std::countr_zero(places);
    detail::forEachUnder(data::kStems, partings.stems[place], [&](std::uint16_t verb) {
      detail::takeEndings(word, folded, partings.endings[place], verb, take);
    });
  }
}

}  // namespace odmiennik::finder
