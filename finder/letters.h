// SPDX-License-Identifier: GPL-3.0-or-later
// Letters without their accents, and the hashes under which beginnings and ends of words are kept.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "engine/plain_letters.h"

namespace odmiennik::finder {

// The longest word that is looked for, in letters without accents; no form comes near it.
inline constexpr std::size_t kLongestWord = 48;

// A word without accents, in place: no memory is asked for while one types.
class Folded {
 public:
  // `word` is lower case (Windows-1252) and outlives this: "œuvrât" -> "oeuvrat". What is too long
  // is no word.
  // Whoever knows that the word has no accents says so, and it is not looked for them.
  explicit Folded(std::string_view word, bool mayHaveAccents = true)
      : text_(mayHaveAccents ? fold(word) : word) {}
  Folded(const Folded&) = delete;
  Folded& operator=(const Folded&) = delete;

  [[nodiscard]] std::string_view text() const { return text_; }
  [[nodiscard]] bool isTooLong() const { return text_.size() > kLongestWord; }

 private:
  [[nodiscard]] std::string_view fold(std::string_view word);

  std::string_view text_;                           // the word itself where it has no accents
  std::array<char, 2 * kLongestWord + 3> letters_;  // were each letter two, and room behind them
};

// Takes `word` off the front of `folded` where it is that without accents; false where it is not.
[[nodiscard]] constexpr bool takeOff(std::string_view word, std::string_view& folded) {
  std::size_t at = 0;
  for (const char letter : word) {
    if (at == folded.size() || folded[at++] != engine::plainLetter(letter)) return false;
    if (engine::isTwoLetters(letter) && (at == folded.size() || folded[at++] != 'e')) return false;
  }
  folded.remove_prefix(at);
  return true;
}

// Hashes that grow by a letter: stems from their first letter on, endings from their last one back.
// Their upper bits are the best.
inline constexpr std::uint32_t kNoLetters = 2166136261U;
[[nodiscard]] constexpr std::uint32_t withLetter(std::uint32_t hash, char letter) {
  return (hash ^ static_cast<unsigned char>(letter)) * 0x9E3779B1U;
}
[[nodiscard]] constexpr std::uint32_t mixed(std::uint32_t hash) {
  hash = (hash ^ (hash >> 15)) * 0x7FEB352DU;
  return hash ^ (hash >> 16);
}
[[nodiscard]] constexpr std::uint32_t endingOf(std::uint32_t ending, std::uint32_t paradigm) {
  return mixed(ending + paradigm * 0x9E3779B9U);
}

}  // namespace odmiennik::finder
