// SPDX-License-Identifier: GPL-3.0-or-later
// Trimming, lower case and the reflexive prefix of infinitives.
#include "engine/normalization.h"

#include <algorithm>
#include <array>

#include "engine/french.h"

namespace odmiennik::engine {
namespace {

constexpr std::array<char, 256> kLowerCase = [] {
  std::array<char, 256> lower{};
  for (unsigned byte = 0; byte < 256; ++byte) {
    const bool isLatinCapital = byte >= 'A' && byte <= 'Z';
    const bool isAccentedCapital = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
    lower[byte] = static_cast<char>(isLatinCapital || isAccentedCapital ? byte + 0x20 : byte);
  }
  const auto pair = [&](std::string_view capital, std::string_view small) {
    lower[static_cast<unsigned char>(capital[0])] = small[0];
  };
  pair("Š"_fr, "š"_fr);
  pair("Œ"_fr, "œ"_fr);
  pair("Ž"_fr, "ž"_fr);
  pair("Ÿ"_fr, "ÿ"_fr);
  return lower;
}();

constexpr char kTypographicApostrophe = "’"_fr[0];

void readTypographicApostrophe(std::string& text) {
  std::ranges::replace(text, kTypographicApostrophe, '\'');
}

}  // namespace

// Lower case, and the apostrophe of the keyboard for that of typography.
constexpr std::array<char, 256> kNormalLetters = [] {
  std::array<char, 256> normal = kLowerCase;
  normal[static_cast<unsigned char>(kTypographicApostrophe)] = '\'';
  return normal;
}();

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void lowerCase(std::string& text) {
  for (char& letter : text) letter = kLowerCase[static_cast<unsigned char>(letter)];
}

bool hasReflexivePrefix(std::string_view text) {
  return text.starts_with("s'") || text.starts_with("se ");
}

std::string_view withoutReflexivePrefix(std::string_view text) {
  if (text.starts_with("se ")) return text.substr(3);
  if (text.starts_with("s'")) return text.substr(2);
  return text;
}

void normalize(std::string_view text, std::string& out) {
  out.assign(trimmed(text));
  for (char& letter : out) letter = kNormalLetters[static_cast<unsigned char>(letter)];
}

std::string keptInfinitive(std::string_view text) {
  std::string kept(trimmed(text));
  readTypographicApostrophe(kept);
  std::string lower = kept;
  lowerCase(lower);
  const std::size_t prefix = lower.size() - withoutReflexivePrefix(lower).size();
  return kept.replace(0, prefix, lower, 0, prefix);
}

std::string lookupKey(std::string_view infinitive) {
  std::string key;
  normalize(infinitive, key);
  return std::string(withoutReflexivePrefix(key));
}

}  // namespace odmiennik::engine
