// SPDX-License-Identifier: GPL-3.0-or-later
// JSON strings.
#include "formats/json_text.h"

#include <gtest/gtest.h>

#include "engine/french.h"
#include "engine/windows1252.h"

namespace odmiennik::formats {
namespace {

using namespace engine::literals;

Utf8Text french(std::string_view text) {
  std::string room(roomForJson(text), ' ');
  return {room.data(), writeJsonFrench(room.data(), text)};
}

Utf8Text utf8(Utf8View text) {
  Utf8Text out;
  appendJsonUtf8(out, text);
  return out;
}

TEST(json_text, french_letters_become_utf8) { EXPECT_EQ(french("être œ €"_fr), "\"être œ €\""); }

TEST(json_text, quotes_and_backslashes_are_escaped) {
  EXPECT_EQ(french("a\"b\\c"), R"("a\"b\\c")");
  EXPECT_EQ(utf8("a\"b\\c"), R"("a\"b\\c")");
}

TEST(json_text, control_characters_are_escaped) {
  constexpr Utf8View kControls("\0\b\t\n\f\r\x1f", 7);
  EXPECT_EQ(french(bytesOf(kControls)), R"("\u0000\b\t\n\f\r\u001f")");
  EXPECT_EQ(utf8(kControls), R"("\u0000\b\t\n\f\r\u001f")");
}

TEST(json_text, what_would_act_on_a_terminal_is_escaped) {
  EXPECT_EQ(french("\x7F\x81\x9D"), R"("\u007f\u0081\u009d")");
  EXPECT_EQ(utf8("\x7F\u009B\u202E\U000E0001"), R"("\u007f\u009b\u202e\udb40\udc01")");
}

TEST(json_text, utf8_passes_unchanged) { EXPECT_EQ(utf8("„zażółć”"), "\"„zażółć”\""); }

TEST(json_text, every_byte_from_blank_on_has_the_engines_utf8_image) {
  for (int byte = 0x20; byte < 0x100; ++byte) {
    const char32_t codePoint = engine::kCodePointOfByte[static_cast<std::size_t>(byte)];
    if (byte == '"' || byte == '\\' || (codePoint >= 0x7F && codePoint < 0xA0)) continue;
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(french(text), "\"" + engine::toUtf8(text) + "\"") << byte;
  }
}

// What a letter becomes on its own: each is written over the end of the one before.
Utf8Text letterByLetter(std::string_view text) {
  Utf8Text letters;
  for (const char letter : text) {
    const Utf8Text alone = french(std::string_view(&letter, 1));
    letters.append(alone, 1, alone.size() - 2);
  }
  return "\"" + letters + "\"";
}

TEST(json_text, a_letter_that_is_not_plain_is_written_the_same_wherever_it_stands) {
  for (const char letter : std::string_view("\"\\\x7F\x1F\0\x80\xE9\xFF", 8))
    for (std::size_t length = 1; length < 20; ++length)
      for (std::size_t place = 0; place < length; ++place) {
        std::string text(length, 'a');
        text[place] = letter;
        EXPECT_EQ(french(text), letterByLetter(text)) << length << " letters, at " << place;
      }
}

TEST(json_text, an_array_holds_its_texts_in_order) {
  Utf8Text out = "x";
  JsonRoom room;
  appendJsonArray(out, std::vector<std::string>{"", "parler", std::string("été"_fr), "a\"b"}, room);
  EXPECT_EQ(out, R"(x["","parler","été","a\"b"])");
  appendJsonArray(out, std::vector<std::string_view>{}, room);
  EXPECT_EQ(out, R"(x["","parler","été","a\"b"][])");
}

TEST(json_text, texts_of_every_length_stay_whole) {
  for (std::size_t length = 0; length < 300; ++length) {
    const std::string text(length, '\x80');
    EXPECT_EQ(french(text), "\"" + engine::toUtf8(text) + "\"") << length;
  }
}

}  // namespace
}  // namespace odmiennik::formats
