// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of what one line asks.
#include "cli/question.h"

#include <cstdio>

#include "dictionary/printable.h"
#include "engine/windows1252.h"
#include "formats/printable.h"

namespace odmiennik::cli {
namespace {

constexpr Utf8View kReplacement = "\uFFFD";

Utf8Text numbered(const char* format, unsigned number) {
  char text[16];
  const int size = std::snprintf(text, sizeof text, format, number);
  return {text, static_cast<std::size_t>(size)};
}

// Accents that would sit on the quotation mark in front of them.
constexpr bool isCombining(char32_t codePoint) { return codePoint >= 0x300 && codePoint < 0x370; }

Utf8Text faultTextAt(Utf8View bytes, engine::Utf8Fault fault) {
  if (fault == engine::Utf8Fault::notUtf8)
    return numbered("0x%02X", static_cast<unsigned char>(bytes[0]));
  const engine::DecodedCodePoint letter = engine::decodeUtf8(bytes);
  const auto size = static_cast<std::size_t>(letter.length);
  const Utf8Text number = numbered("U+%04X", letter.value);
  if (dictionary::actsOnTerminal(letter.value) || isCombining(letter.value)) return number;
  return "„" + Utf8Text(bytes.substr(0, size)) + "” (" + number + ")";
}

// Turns the line's bytes into Windows-1252 or fills the fault.
std::string convert(Utf8View bytes, Question& question) {
  engine::FromUtf8 converted = engine::fromUtf8(bytes);
  if (converted.fault == engine::Utf8Fault::none) return std::move(converted.text);
  question.fault = converted.fault == engine::Utf8Fault::notUtf8 ? QuestionFault::notUtf8
                                                                 : QuestionFault::letterOutside;
  question.faultPosition = converted.position;
  question.faultText = faultTextAt(bytes.substr(converted.position), converted.fault);
  return {};
}

// Bytes at the end of a cut line that may be the beginning of a letter.
Utf8View withoutCutLetter(Utf8View bytes) {
  for (std::size_t tail = 1; tail <= 3 && tail <= bytes.size(); ++tail) {
    const auto byte = static_cast<unsigned char>(bytes[bytes.size() - tail]);
    if (byte < 0x80) return bytes;
    if (byte < 0xC0) continue;
    const bool isWhole = engine::decodeUtf8(bytes.substr(bytes.size() - tail)).length != 0;
    return isWhole ? bytes : bytes.substr(0, bytes.size() - tail);
  }
  return bytes;
}

}  // namespace

Utf8Text cleanUtf8(Utf8View bytes) {
  Utf8Text clean;
  while (!bytes.empty()) {
    const auto size = static_cast<std::size_t>(engine::decodeUtf8(bytes).length);
    clean.append(size == 0 ? kReplacement : bytes.substr(0, size));
    bytes.remove_prefix(size == 0 ? 1 : size);
  }
  return clean;
}

Question questionOf(const InputLine& line) {
  Question question;
  const auto tab = line.bytes.find('\t');
  const Utf8View typed = line.bytes.substr(0, tab);
  question.typed = cleanUtf8(line.isCut ? withoutCutLetter(typed) : typed);
  if (line.isCut) {
    question.fault = QuestionFault::tooLong;
    return question;
  }
  std::string text = convert(line.bytes, question);
  if (question.fault != QuestionFault::none) return question;
  // In Windows-1252 the TAB is the same byte, though not at the same place.
  const auto end = text.find('\t');
  if (end != std::string::npos) question.record = text.substr(end + 1);
  text.resize(end == std::string::npos ? text.size() : end);
  question.infinitive = std::move(text);
  return question;
}

Utf8Text nameOf(std::string_view infinitive) {
  constexpr std::size_t kLongestName = 60;
  Utf8Text name = "„";
  formats::appendPrintable(name, infinitive.substr(0, kLongestName));
  return name + (infinitive.size() > kLongestName ? "…”" : "”");
}

Utf8Text faultSentence(const Question& question) {
  const Utf8Text position = decimal(question.faultPosition + 1);
  switch (question.fault) {
    case QuestionFault::notUtf8:
      return "bajt " + question.faultText + " na pozycji " + position +
             " nie należy do tekstu UTF-8.";
    case QuestionFault::letterOutside:
      return "znaku " + question.faultText + " nie ma w zestawie Windows-1252.";
    case QuestionFault::tooLong:
      return "tekst jest dłuższy niż " + decimal(kLongestLine) + " bajtów.";
    case QuestionFault::none:
      break;
  }
  return {};
}

}  // namespace odmiennik::cli
