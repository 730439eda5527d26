// SPDX-License-Identifier: GPL-3.0-or-later
// JSON strings.
#include "cli/json_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "dictionary/printable.h"
#include "engine/windows1252.h"

namespace odmiennik::cli {
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

// Writes the images of at most kBlock letters at `end` and returns the new end.
constexpr std::size_t kBlock = 64;
char* writeImages(char* end, std::string_view letters) {
  for (const char letter : letters) {
    const Image& image = kFrenchImages[static_cast<unsigned char>(letter)];
    std::memcpy(end, &image, sizeof image);
    end += image.length;
  }
  return end;
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

}  // namespace

void appendJsonFrench(Utf8Text& out, std::string_view french) {
  char block[kBlock * sizeof(Image) + 2];
  char* end = block;
  *end++ = '"';
  while (french.size() > kBlock) {
    end = writeImages(end, french.substr(0, kBlock));
    out.append(block, static_cast<std::size_t>(end - block));
    end = block;
    french.remove_prefix(kBlock);
  }
  end = writeImages(end, french);
  *end++ = '"';
  out.append(block, static_cast<std::size_t>(end - block));
}

void appendJsonUtf8(Utf8Text& out, Utf8View utf8) {
  out.push_back('"');
  while (!utf8.empty()) {
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
  out.push_back('"');
}

}  // namespace odmiennik::cli
