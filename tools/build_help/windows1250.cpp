// SPDX-License-Identifier: GPL-3.0-or-later
// Windows-1250 from UTF-8.
#include "tools/build_help/windows1250.h"

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>

#include "engine/windows1252.h"

namespace odmiennik::tools {
namespace {

// The code points of the bytes from 0x80; 0 where the encoding leaves a byte undefined.
constexpr std::array<char32_t, 128> kUpperHalf{
    0x20AC, 0x0000, 0x201A, 0x0000, 0x201E, 0x2026, 0x2020, 0x2021, 0x0000, 0x2030, 0x0160, 0x2039,
    0x015A, 0x0164, 0x017D, 0x0179, 0x0000, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x0000, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141,
    0x00A4, 0x0104, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB,
    0x013D, 0x02DD, 0x013E, 0x017C, 0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3,
    0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, 0x010D, 0x00E9, 0x0119, 0x00EB,
    0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

std::optional<char> byteOf(char32_t letter) {
  if (letter < 0x80) return static_cast<char>(letter);
  const auto found = std::find(kUpperHalf.begin(), kUpperHalf.end(), letter);
  if (found == kUpperHalf.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - kUpperHalf.begin()));
}

std::string_view entityOfMarkup(char32_t letter) {
  switch (letter) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    default:
      return {};
  }
}

// Takes the first letter off the text.
char32_t takeLetter(Utf8View& utf8) {
  const engine::DecodedCodePoint letter = engine::decodeUtf8(utf8);
  if (letter.length == 0) throw std::runtime_error("a text is not UTF-8");
  utf8.remove_prefix(static_cast<std::size_t>(letter.length));
  return letter.value;
}

}  // namespace

std::string windows1250(Utf8View utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const char32_t letter = takeLetter(utf8);
    const std::optional<char> byte = byteOf(letter);
    if (!byte)
      throw std::runtime_error("letter " + std::to_string(static_cast<unsigned>(letter)) +
                               " is not in Windows-1250");
    bytes += *byte;
  }
  return bytes;
}

std::string windows1250Markup(Utf8View utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const char32_t letter = takeLetter(utf8);
    const std::string_view entity = entityOfMarkup(letter);
    if (!entity.empty()) {
      bytes += entity;
    } else if (const std::optional<char> byte = byteOf(letter)) {
      bytes += *byte;
    } else {
      bytes += "&#" + std::to_string(static_cast<unsigned>(letter)) + ";";
    }
  }
  return bytes;
}

}  // namespace odmiennik::tools
