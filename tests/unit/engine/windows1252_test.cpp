// SPDX-License-Identifier: GPL-3.0-or-later
// Windows-1252 and UTF-8: the round trip of every byte, and what is refused.
#include "engine/windows1252.h"

#include <gtest/gtest.h>

#include <string>

namespace odmiennik::engine {
namespace {

void expectRefused(Utf8View utf8, Utf8Fault fault, std::size_t position) {
  const FromUtf8 result = fromUtf8(utf8);
  EXPECT_EQ(result.fault, fault) << ::testing::PrintToString(utf8);
  EXPECT_EQ(result.position, position) << ::testing::PrintToString(utf8);
}

TEST(windows_1252, every_byte_survives_the_way_to_utf8_and_back) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string letter(1, static_cast<char>(byte));
    const FromUtf8 back = fromUtf8(toUtf8(letter));
    EXPECT_EQ(back.fault, Utf8Fault::none) << byte;
    EXPECT_EQ(back.text, letter) << byte;
  }
}

TEST(windows_1252, no_two_bytes_share_an_image) {
  for (int first = 0; first < 256; ++first)
    for (int second = first + 1; second < 256; ++second)
      EXPECT_NE(toUtf8(std::string(1, static_cast<char>(first))),
                toUtf8(std::string(1, static_cast<char>(second))));
}

TEST(windows_1252, all_bytes_in_one_text_survive_the_round_trip) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  EXPECT_EQ(fromUtf8(toUtf8(all)).text, all);
}

TEST(windows_1252, french_letters_have_their_bytes) {
  const struct {
    Utf8View letter;
    unsigned char byte;
  } kLetters[] = {{"à", 0xE0}, {"â", 0xE2}, {"ç", 0xE7}, {"è", 0xE8}, {"é", 0xE9}, {"ê", 0xEA},
                  {"ë", 0xEB}, {"î", 0xEE}, {"ï", 0xEF}, {"ô", 0xF4}, {"ù", 0xF9}, {"û", 0xFB},
                  {"ü", 0xFC}, {"ÿ", 0xFF}, {"É", 0xC9}, {"Ê", 0xCA}, {"œ", 0x9C}, {"Œ", 0x8C},
                  {"æ", 0xE6}, {"’", 0x92}, {"€", 0x80}, {"Ÿ", 0x9F}};
  for (const auto& row : kLetters) {
    EXPECT_EQ(fromUtf8(row.letter).text, std::string(1, static_cast<char>(row.byte))) << row.letter;
    EXPECT_EQ(toUtf8(std::string(1, static_cast<char>(row.byte))), row.letter);
  }
}

TEST(windows_1252, bytes_without_a_letter_stand_for_the_control_characters_of_their_number) {
  for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
    EXPECT_EQ(kCodePointOfByte[static_cast<std::size_t>(byte)], static_cast<char32_t>(byte));
}

TEST(windows_1252, the_empty_text_is_a_text_in_both_directions) {
  EXPECT_EQ(toUtf8(""), "");
  EXPECT_EQ(fromUtf8("").fault, Utf8Fault::none);
}

TEST(windows_1252, polish_letters_are_outside) {
  for (const Utf8View letter : {"ą", "ć", "ę", "ł", "ń", "ś", "ź", "ż", "Ł"})
    expectRefused(letter, Utf8Fault::letterOutside, 0);
}

TEST(windows_1252, the_fault_is_reported_at_the_first_bad_byte) {
  expectRefused("été łapać", Utf8Fault::letterOutside, 6);
  expectRefused("ab\xFF", Utf8Fault::notUtf8, 2);
}

TEST(windows_1252, letters_of_other_planes_are_outside) {
  expectRefused("\U0001F600", Utf8Fault::letterOutside, 0);
  expectRefused("日本", Utf8Fault::letterOutside, 0);
}

TEST(windows_1252, a_letter_and_its_combining_accent_are_one_letter) {
  EXPECT_EQ(fromUtf8("e\u0302tre").text, "\xEAtre");
  EXPECT_EQ(fromUtf8("e\u0301te\u0301 C\u0327a, Y\u0308").text,
            "\xE9t\xE9 \xC7"
            "a, \x9F");
}

TEST(windows_1252, every_accented_letter_is_made_of_its_parts) {
  const struct {
    char32_t accent;
    std::string_view bases;
    Utf8View letters;
  } kAccents[] = {{0x300, "aeiou", "àèìòù"},   {0x301, "aeiouy", "áéíóúý"},
                  {0x302, "aeiou", "âêîôû"},   {0x303, "ano", "ãñõ"},
                  {0x308, "aeiouy", "äëïöüÿ"}, {0x30A, "A", "Å"},
                  {0x30C, "sz", "šž"},         {0x327, "c", "ç"}};
  for (const auto& row : kAccents) {
    const std::string letters = fromUtf8(row.letters).text;
    for (std::size_t i = 0; i < row.bases.size(); ++i)
      EXPECT_EQ(composedByte(row.bases[i], row.accent), static_cast<unsigned char>(letters[i]))
          << row.letters;
  }
}

TEST(windows_1252, an_accent_that_makes_no_letter_is_outside) {
  expectRefused("\u0301e", Utf8Fault::letterOutside, 0);
  expectRefused("s\u0301", Utf8Fault::letterOutside, 1);
  expectRefused("e\u0301\u0301", Utf8Fault::letterOutside, 3);
  expectRefused("e\u0323", Utf8Fault::letterOutside, 1);
}

TEST(windows_1252, control_characters_with_a_letter_in_their_place_are_outside) {
  // U+0080 is a control character; the byte 80 is the euro sign.
  expectRefused("\u0080", Utf8Fault::letterOutside, 0);
  expectRefused("\u009F", Utf8Fault::letterOutside, 0);
}

TEST(windows_1252, overlong_sequences_are_refused) {
  expectRefused("\xC0\x80", Utf8Fault::notUtf8, 0);
  expectRefused("\xC1\xA1", Utf8Fault::notUtf8, 0);
  expectRefused("\xE0\x83\xA9", Utf8Fault::notUtf8, 0);
  expectRefused("\xF0\x80\x83\xA9", Utf8Fault::notUtf8, 0);
}

TEST(windows_1252, surrogates_are_refused) {
  expectRefused("\xED\xA0\x80", Utf8Fault::notUtf8, 0);
  expectRefused("\xED\xBF\xBF", Utf8Fault::notUtf8, 0);
}

TEST(windows_1252, code_points_past_the_last_are_refused) {
  expectRefused("\xF4\x90\x80\x80", Utf8Fault::notUtf8, 0);
  expectRefused("\xF5\x80\x80\x80", Utf8Fault::notUtf8, 0);
}

TEST(windows_1252, cut_sequences_are_refused) {
  expectRefused("\xC3", Utf8Fault::notUtf8, 0);
  expectRefused("a\xE2\x80", Utf8Fault::notUtf8, 1);
  expectRefused("\xF0\x9F\x98", Utf8Fault::notUtf8, 0);
  expectRefused("\xC3(", Utf8Fault::notUtf8, 0);
}

TEST(windows_1252, continuation_bytes_alone_are_refused) {
  for (int byte = 0x80; byte < 0xC0; ++byte)
    expectRefused(Utf8Text(1, static_cast<char>(byte)), Utf8Fault::notUtf8, 0);
}

}  // namespace
}  // namespace odmiennik::engine
