// SPDX-License-Identifier: GPL-3.0-or-later
// JSON strings.
#include "formats/json_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "dictionary/printable.h"
#include "engine/windows1252.h"

namespace odmiennik::formats {
namespace {

// What stands for one byte inside a JSON string. All eight bytes are copied and `length` of them
// kept: one store a letter.
struct Image {
  char bytes[7];
  std::uint8_t length;
};
static_assert(sizeof(Image) == 8);

constexpr Image escapeOf(unsigned control) {
  constexpr char kDigits[] = "0123456789abcdef";
  switch (control) {
    case '\b':
      return {{'\\', 'b'}, 2};
    case '\f':
      return {{'\\', 'f'}, 2};
    case '\n':
      return {{'\\', 'n'}, 2};
    case '\r':
      return {{'\\', 'r'}, 2};
    case '\t':
      return {{'\\', 't'}, 2};
    default:
      return {{'\\', 'u', '0', '0', kDigits[control >> 4], kDigits[control & 15]}, 6};
  }
}

constexpr Image utf8Of(char32_t codePoint) {
  const auto tail = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
  if (codePoint < 0x80) return {{static_cast<char>(codePoint)}, 1};
  if (codePoint < 0x800) return {{static_cast<char>(0xC0 | (codePoint >> 6)), tail(codePoint)}, 2};
  return {{static_cast<char>(0xE0 | (codePoint >> 12)), tail(codePoint >> 6), tail(codePoint)}, 3};
}

constexpr Image imageOf(char32_t codePoint) {
  if (codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0)) return escapeOf(codePoint);
  if (codePoint == '"' || codePoint == '\\') return {{'\\', static_cast<char>(codePoint)}, 2};
  return utf8Of(codePoint);
}

constexpr std::array<Image, 256> kFrenchImages = [] {
  std::array<Image, 256> images{};
  for (std::size_t byte = 0; byte < 256; ++byte)
    images[byte] = imageOf(engine::kCodePointOfByte[byte]);
  return images;
}();

// Eight bytes are written, whatever the image's length.
char* writeImage(char* end, char letter) {
  const Image& image = kFrenchImages[static_cast<unsigned char>(letter)];
  std::memcpy(end, &image, sizeof image);
  return end + image.length;
}

void appendImage(Utf8Text& out, const Image& image) { out.append(image.bytes, image.length); }

void appendUnit(Utf8Text& out, char32_t utf16) {
  char text[8];
  const int size = std::snprintf(text, sizeof text, "\\u%04x", static_cast<unsigned>(utf16));
  out.append(text, static_cast<std::size_t>(size));
}

// The code point as JSON escapes it: beyond the first plane as its two units of UTF-16.
void appendCodePoint(Utf8Text& out, char32_t codePoint) {
  constexpr char32_t kFirstPlane = 0x10000;
  if (codePoint < kFirstPlane) return appendUnit(out, codePoint);
  appendUnit(out, 0xD800 + ((codePoint - kFirstPlane) >> 10));
  appendUnit(out, 0xDC00 + ((codePoint - kFirstPlane) & 0x3FF));
}

// Whether a byte of UTF-8 is a letter that stands for itself.
bool isPlain(char byte) { return byte >= ' ' && byte < '\x7F' && byte != '"' && byte != '\\'; }

// Takes the first letter off `utf8`.
void takeLetter(Utf8Text& out, Utf8View& utf8) {
  const engine::DecodedCodePoint letter = engine::decodeUtf8(utf8);
  const Utf8View bytes = utf8.substr(0, static_cast<std::size_t>(std::max(letter.length, 1)));
  if (letter.value < 0xA0)
    appendImage(out, imageOf(letter.value));
  else if (dictionary::actsOnTerminal(letter.value))
    appendCodePoint(out, letter.value);
  else
    out.append(bytes);
  utf8.remove_prefix(bytes.size());
}

}  // namespace

char* writeJsonFrench(char* end, std::string_view french) {
  *end++ = '"';
  for (const char letter : french) end = writeImage(end, letter);
  *end++ = '"';
  return end;
}

void appendJsonFrench(Utf8Text& out, std::string_view french) {
  const std::size_t start = out.size();
  out.resize(start + roomForJson(french));
  out.resize(static_cast<std::size_t>(writeJsonFrench(&out[start], french) - out.data()));
}

void appendJsonUtf8(Utf8Text& out, Utf8View utf8) {
  out.push_back('"');
  while (!utf8.empty()) {
    const auto plain = static_cast<std::size_t>(
        std::find_if_not(utf8.begin(), utf8.end(), isPlain) - utf8.begin());
    out.append(utf8.substr(0, plain));
    utf8.remove_prefix(plain);
    if (!utf8.empty()) takeLetter(out, utf8);
  }
  out.push_back('"');
}

void appendJsonKey(Utf8Text& out, Utf8View key) { out.append(",\"").append(key).append("\":"); }

void appendJsonTexts(Utf8Text& out, std::initializer_list<std::pair<Utf8View, Utf8View>> members) {
  for (const auto& [key, text] : members) {
    appendJsonKey(out, key);
    appendJsonUtf8(out, text);
  }
}

}  // namespace odmiennik::formats
