// SPDX-License-Identifier: GPL-3.0-or-later
// JSON strings of the two encodings that the program knows.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <utility>

#include "engine/utf8.h"

namespace odmiennik::formats {

// What would act on a terminal is escaped, controls of both sets and marks of direction alike: JSON
// reads it as the same text.

// Writes `french` (Windows-1252) as a JSON string, quotes included, at `end`, where there is room
// for it, and returns the place behind it: été"s -> "été\"s".
[[nodiscard]] char* writeJsonFrench(char* end, std::string_view french);

// Appends it to a text.
void appendJsonFrench(Utf8Text& out, std::string_view french);

// The most bytes that writeJsonFrench() may touch: six a letter, the quotes, and what the last
// letter's image is shorter than the eight bytes that it is written as.
[[nodiscard]] constexpr std::size_t roomForJson(std::string_view french) {
  return 6 * french.size() + 4;
}

// Where texts are written before they are appended; kept for the next ones.
class JsonRoom {
 public:
  // At least so many bytes, whatever they hold.
  [[nodiscard]] char* of(std::size_t bytes) {
    if (bytes > size_) room_ = std::make_unique_for_overwrite<char[]>(size_ = bytes);
    return room_.get();
  }

 private:
  std::unique_ptr<char[]> room_;
  std::size_t size_ = 0;
};

// The most bytes that a JSON array of the texts may touch.
template <typename Texts>
[[nodiscard]] std::size_t roomForArray(const Texts& texts) {
  std::size_t bytes = 2;
  for (const std::string_view text : texts) bytes += roomForJson(text) + 1;
  return bytes;
}

// Appends French texts as a JSON array: {"va", "été"} -> ["va","été"]. Room is made once for all of
// them: text by text, an answer as JSON takes 11 % more instructions.
template <typename Texts>
void appendJsonArray(Utf8Text& out, const Texts& texts, JsonRoom& room) {
  char* const start = room.of(roomForArray(texts));
  char* end = start;
  *end++ = '[';
  for (const std::string_view text : texts) {
    end = writeJsonFrench(end, text);
    *end++ = ',';
  }
  if (end[-1] == ',') --end;
  *end++ = ']';
  out.append(start, static_cast<std::size_t>(end - start));
}

// Appends `utf8`, which must be well-formed, as a JSON string, quotes included.
void appendJsonUtf8(Utf8Text& out, Utf8View utf8);

// Appends the key of a further member of an object: ,"slots":
void appendJsonKey(Utf8Text& out, Utf8View key);

// Appends further members that are texts in UTF-8: ,"mood":"Indicatif","tense":"présent"
void appendJsonTexts(Utf8Text& out, std::initializer_list<std::pair<Utf8View, Utf8View>> members);

}  // namespace odmiennik::formats
