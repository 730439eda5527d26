// SPDX-License-Identifier: GPL-3.0-or-later
// Letters without their accents.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "engine/french.h"

namespace odmiennik::engine {

namespace detail {

// A letter, the accented ones of French words, and those that only other languages have.
struct AccentedLetters {
  char plain;
  std::string_view french, others;
};
inline constexpr AccentedLetters kAccentedLetters[] = {
    {'a', "àâäæ"_fr, "áãå"_fr}, {'c', "ç"_fr, {}}, {'e', "èéêë"_fr, {}},
    {'i', "îï"_fr, "ìí"_fr},    {'n', {}, "ñ"_fr}, {'o', "ôöœ"_fr, "òóõ"_fr},
    {'u', "ùûü"_fr, "ú"_fr},    {'y', {}, "ýÿ"_fr}};

}  // namespace detail

// The letter of every byte (Windows-1252, lower case) without its accent; of œ and æ the first of
// two. Any other byte is its own.
inline constexpr std::array<char, 256> kPlainLetters = [] {
  std::array<char, 256> plain{};
  for (std::size_t byte = 0; byte < plain.size(); ++byte) plain[byte] = static_cast<char>(byte);
  for (const detail::AccentedLetters& row : detail::kAccentedLetters)
    for (const std::string_view letters : {row.french, row.others})
      for (const char letter : letters) plain[static_cast<unsigned char>(letter)] = row.plain;
  return plain;
}();

// kPlainLetters of one letter: plainLetter("é"_fr[0]) -> 'e'.
[[nodiscard]] constexpr char plainLetter(char letter) {
  return kPlainLetters[static_cast<unsigned char>(letter)];
}

// An e follows: œ is oe, æ is ae.
[[nodiscard]] constexpr bool isTwoLetters(char letter) {
  return letter == "œ"_fr[0] || letter == "æ"_fr[0];
}

// A lower-case word without its accents: withoutAccents("œuvrât"_fr) -> "oeuvrat".
[[nodiscard]] inline std::string withoutAccents(std::string_view word) {
  std::string plain;
  for (const char letter : word) {
    plain += plainLetter(letter);
    if (isTwoLetters(letter)) plain += 'e';
  }
  return plain;
}

// The letter under which a dictionary files a word: the unaccented lower-case letter of its first
// character (Windows-1252), œ as o; 0 for a character that no French word begins with:
// initialLetter("é"_fr[0]) -> 'e', initialLetter("ñ"_fr[0]) -> 0.
[[nodiscard]] constexpr char initialLetter(char first) {
  if (first >= 'a' && first <= 'z') return first;
  for (const detail::AccentedLetters& row : detail::kAccentedLetters)
    if (row.french.find(first) != std::string_view::npos) return row.plain;
  return 0;
}

}  // namespace odmiennik::engine
