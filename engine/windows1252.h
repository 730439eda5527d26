// SPDX-License-Identifier: GPL-3.0-or-later
// Windows-1252, the one-byte encoding of all French text inside the program and in its files.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/utf8.h"

namespace odmiennik::engine {

// The Unicode code point of every byte. The five bytes that Windows-1252 leaves undefined stand for
// the control characters of the same number, so that any byte survives a round trip.
inline constexpr std::array<char32_t, 256> kCodePointOfByte = [] {
  std::array<char32_t, 256> table{};
  for (std::size_t byte = 0; byte < table.size(); ++byte) table[byte] = static_cast<char32_t>(byte);
  constexpr char32_t kBlock80To9F[32] = {
      0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
  for (std::size_t i = 0; i < 32; ++i) table[0x80 + i] = kBlock80To9F[i];
  return table;
}();

// The byte of a code point, or nothing when Windows-1252 has no such letter ("ą").
[[nodiscard]] constexpr std::optional<unsigned char> byteOfCodePoint(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
    return static_cast<unsigned char>(codePoint);
  for (unsigned byte = 0x80; byte < 0xA0; ++byte)
    if (kCodePointOfByte[byte] == codePoint) return static_cast<unsigned char>(byte);
  return std::nullopt;
}

// The byte of the letter that `base` and a combining accent behind it make, or nothing when
// Windows-1252 has no such letter: composedByte('e', U+0301) -> "é", composedByte('s', U+0301) ->
// nothing.
[[nodiscard]] std::optional<unsigned char> composedByte(char base, char32_t accent);

// One code point read from UTF-8 text: its value and the number of bytes it took (0: no UTF-8).
struct DecodedCodePoint {
  char32_t value = 0;
  int length = 0;
};

// Reads the code point at the start of `text`; refuses overlong forms, surrogates and cut
// sequences.
[[nodiscard]] constexpr DecodedCodePoint decodeUtf8(Utf8View text) {
  constexpr char32_t kSmallestOfLength[] = {0, 0, 0x80, 0x800, 0x10000};
  if (text.empty()) return {};
  const auto lead = static_cast<unsigned char>(text[0]);
  if (lead < 0x80) return {lead, 1};
  const int length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < static_cast<std::size_t>(length)) return {};
  char32_t value = lead & (0x7F >> length);
  for (int i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
    if ((next & 0xC0) != 0x80) return {};
    value = (value << 6) | (next & 0x3F);
  }
  const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
  if (value < kSmallestOfLength[length] || value > 0x10FFFF || isSurrogate) return {};
  return {value, length};
}

// Appends `bytes` (Windows-1252) to `out` as UTF-8; every byte has an image, so nothing is refused.
void appendUtf8(Utf8Text& out, std::string_view bytes);

// "\xE9t\xE9" -> "été".
[[nodiscard]] Utf8Text toUtf8(std::string_view bytes);

// Why UTF-8 text could not become Windows-1252.
enum class Utf8Fault : std::uint8_t { none, notUtf8, letterOutside };

// `text` is complete when `fault` is none; otherwise `position` is the offset of the first bad
// byte.
struct FromUtf8 {
  std::string text;
  Utf8Fault fault = Utf8Fault::none;
  std::size_t position = 0;
};

// "été" -> "\xE9t\xE9", also where its accents follow their letters as code points of their own, as
// texts from other systems have them; "łapać" is refused with letterOutside at 0, "\xFF" with
// notUtf8.
[[nodiscard]] FromUtf8 fromUtf8(Utf8View utf8);

}  // namespace odmiennik::engine
