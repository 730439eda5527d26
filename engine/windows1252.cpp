// SPDX-License-Identifier: GPL-3.0-or-later
// Conversion between Windows-1252 and UTF-8, used only at the program's edges.
#include "engine/windows1252.h"

#include <algorithm>

#include "engine/french.h"

namespace odmiennik::engine {
namespace {

// The UTF-8 image of one byte, ready to be copied: at most three bytes ("€").
struct Utf8Image {
  char bytes[3];
  std::uint8_t length;
};

constexpr Utf8Image imageOf(char32_t codePoint) {
  const auto tail = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
  if (codePoint < 0x80) return {{static_cast<char>(codePoint), 0, 0}, 1};
  if (codePoint < 0x800)
    return {{static_cast<char>(0xC0 | (codePoint >> 6)), tail(codePoint), 0}, 2};
  return {{static_cast<char>(0xE0 | (codePoint >> 12)), tail(codePoint >> 6), tail(codePoint)}, 3};
}

constexpr std::array<Utf8Image, 256> kUtf8Images = [] {
  std::array<Utf8Image, 256> images{};
  for (std::size_t byte = 0; byte < 256; ++byte) images[byte] = imageOf(kCodePointOfByte[byte]);
  return images;
}();

// A combining accent: the letters that it stands on and the letters that it makes of them.
struct Accent {
  char32_t codePoint;
  std::string_view bases;
  std::string_view letters;
};

constexpr Accent kAccents[] = {
    {0x0300, "AEIOUaeiou", "ÀÈÌÒÙàèìòù"_fr},
    {0x0301, "AEIOUYaeiouy", "ÁÉÍÓÚÝáéíóúý"_fr},
    {0x0302, "AEIOUaeiou", "ÂÊÎÔÛâêîôû"_fr},
    {0x0303, "ANOano", "ÃÑÕãñõ"_fr},
    {0x0308, "AEIOUYaeiouy", "ÄËÏÖÜŸäëïöüÿ"_fr},
    {0x030A, "Aa", "Åå"_fr},
    {0x030C, "SZsz", "ŠŽšž"_fr},
    {0x0327, "Cc", "Çç"_fr},
};

// Puts the letter into `text`: its last letter with an accent on it, or one letter more.
bool appendCodePoint(std::string& text, char32_t codePoint) {
  if (const auto byte = byteOfCodePoint(codePoint)) {
    text.push_back(static_cast<char>(*byte));
    return true;
  }
  const auto composed = text.empty() ? std::nullopt : composedByte(text.back(), codePoint);
  if (composed) text.back() = static_cast<char>(*composed);
  return composed.has_value();
}

}  // namespace

std::optional<unsigned char> composedByte(char base, char32_t accent) {
  for (const Accent& row : kAccents) {
    if (row.codePoint != accent) continue;
    const auto place = row.bases.find(base);
    if (place == std::string_view::npos) return std::nullopt;
    return static_cast<unsigned char>(row.letters[place]);
  }
  return std::nullopt;
}

// Most letters are the same in both: what lies between two others is appended at once, which takes
// half of a TSV line's time away.
void appendUtf8(Utf8Text& out, std::string_view bytes) {
  const auto isPlain = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  while (!bytes.empty()) {
    const auto plainEnd = std::find_if_not(bytes.begin(), bytes.end(), isPlain);
    const auto plain = static_cast<std::size_t>(plainEnd - bytes.begin());
    out.append(bytes.data(), plain);
    bytes.remove_prefix(plain);
    for (; !bytes.empty() && !isPlain(bytes.front()); bytes.remove_prefix(1)) {
      const Utf8Image& image = kUtf8Images[static_cast<unsigned char>(bytes.front())];
      out.append(image.bytes, image.length);
    }
  }
}

Utf8Text toUtf8(std::string_view bytes) {
  Utf8Text utf8;
  utf8.reserve(bytes.size() + bytes.size() / 4);
  appendUtf8(utf8, bytes);
  return utf8;
}

FromUtf8 fromUtf8(Utf8View utf8) {
  FromUtf8 result;
  result.text.reserve(utf8.size());
  while (result.position < utf8.size()) {
    const DecodedCodePoint decoded = decodeUtf8(utf8.substr(result.position));
    if (decoded.length == 0 || !appendCodePoint(result.text, decoded.value)) {
      result.fault = decoded.length == 0 ? Utf8Fault::notUtf8 : Utf8Fault::letterOutside;
      return result;
    }
    result.position += static_cast<std::size_t>(decoded.length);
  }
  return result;
}

}  // namespace odmiennik::engine
