// SPDX-License-Identifier: GPL-3.0-or-later
// The simple forms of all verbs of the index, as the build has taken them from the engine.
#pragma once

#include <string_view>

#include "finder/form_index_data.h"
#include "finder/letters.h"

namespace odmiennik::finder {

// A verb of which a word is a form.
struct FoundForm {
  std::uint16_t verb = 0;  // position in the verb index
  std::string_view stem;   // Windows-1252; the form is stem and ending
  std::string_view ending;
  data::PlacesOfForm places{};

  [[nodiscard]] const data::Paradigm& paradigm() const {
    return data::kParadigms[data::kParadigmOfVerb[verb]];
  }
  [[nodiscard]] bool isSpelt(std::string_view word) const {
    return word.size() == stem.size() + ending.size() && word.starts_with(stem) &&
           word.ends_with(ending);
  }
};

namespace detail {

[[nodiscard]] inline bool isSet(const std::uint64_t* bits, std::uint32_t bit) {
  return (bits[bit / 64] >> (bit % 64) & 1) != 0;
}

// Most beginnings of words are no stem of a verb, and the table of stems lies further away than a
// few bits.
[[nodiscard]] inline bool mayBeStem(std::uint32_t hash) {
  return isSet(data::kSomeStem, data::bitOfStem(hash));
}

// The ends of a word by where they begin.
struct Ends {
  explicit Ends(std::string_view folded) {
    std::uint32_t hash = kNoLetters;
    hashes[folded.size()] = hash;
    for (std::size_t i = folded.size(); i-- > 0;) hashes[i] = hash = withLetter(hash, folded[i]);
  }
  [[nodiscard]] bool mayBeEnding(std::size_t start) const {
    return isSet(data::kSomeEnding, data::bitOfEnding(hashes[start]));
  }
  std::uint32_t hashes[kLongestWord + 1];
};

// The place of a hash table that a hash begins at, and then the next one.
struct Chain {
  Chain(const data::Hashed* table, std::uint32_t size, std::uint32_t hash)
      : places(table), mask(size - 1), place(hash & mask), print(hash >> 16) {}
  // The next position with the print; nothing behind the last one.
  [[nodiscard]] bool next(std::uint32_t& position) {
    for (;; place = (place + 1) & mask) {
      const data::Hashed& entry = places[place];
      if (entry.position == 0) return false;
      if (entry.print != print) continue;
      position = entry.position - 1U;
      place = (place + 1) & mask;
      return true;
    }
  }
  const data::Hashed* places;
  std::uint32_t mask;
  std::uint32_t place;
  std::uint32_t print;
};

[[nodiscard]] std::string_view stemOf(std::uint32_t verb);
[[nodiscard]] bool isSpeltWithoutAccents(const FoundForm& form, std::string_view folded);

// Calls `take` for the endings of the verb that begin at `start`.
template <typename Take>
void takeEndings(std::string_view folded, const Ends& ends, std::size_t start, std::uint32_t verb,
                 Take& take) {
  const std::uint32_t paradigm = data::kParadigmOfVerb[verb];
  Chain firsts(data::kFirstEndings, data::kFirstEndingsSize,
               endingOf(ends.hashes[start], paradigm));
  for (std::uint32_t first = 0; firsts.next(first);) {
    const data::Ending* ending = &data::kEndings[first];
    if (ending->paradigm != paradigm) continue;
    for (bool isLast = false; !isLast; isLast = (ending++)->isLast) {
      const FoundForm form{static_cast<std::uint16_t>(verb),
                           stemOf(verb),
                           {data::kEndingLetters + ending->letters, ending->size},
                           data::kPlaces[ending->places]};
      if (isSpeltWithoutAccents(form, folded)) take(form);
    }
  }
}

}  // namespace detail

// Calls `take(const FoundForm&)` for each form of a verb of the index that, without accents, is
// `folded` (a word as Folded makes it).
template <typename Take>
void forEachForm(std::string_view folded, Take take) {
  const detail::Ends ends(folded);
  std::uint32_t stem = kNoLetters;
  for (std::size_t start = 0; start <= folded.size(); ++start) {
    if (start > 0) stem = withLetter(stem, folded[start - 1]);
    if (!ends.mayBeEnding(start)) continue;
    const std::uint32_t hash = mixed(stem);
    if (!detail::mayBeStem(hash)) continue;
    detail::Chain stems(data::kStems, data::kStemsSize, hash);
    for (std::uint32_t verb = 0; stems.next(verb);)
      detail::takeEndings(folded, ends, start, verb, take);
  }
}

}  // namespace odmiennik::finder
