// SPDX-License-Identifier: GPL-3.0-or-later
// Escapes for what a terminal would obey.
#include "dictionary/printable.h"

#include <algorithm>
#include <cstdio>

#include "engine/windows1252.h"

namespace odmiennik::dictionary {

namespace {

void appendNumber(Utf8Text& out, const char* format, char32_t number) {
  char text[16];
  const int size = std::snprintf(text, sizeof text, format, static_cast<unsigned>(number));
  out.append(text, static_cast<std::size_t>(size));
}

void appendEscape(Utf8Text& out, char32_t codePoint) {
  if (codePoint < 0x80)
    appendNumber(out, "\\x%02X", codePoint);
  else
    appendNumber(out, codePoint > 0xFFFF ? "\\U%08X" : "\\u%04X", codePoint);
}

}  // namespace

void appendPrintable(Utf8Text& out, Utf8View utf8) {
  while (!utf8.empty()) {
    const engine::DecodedCodePoint letter = engine::decodeUtf8(utf8);
    const auto size = static_cast<std::size_t>(std::max(letter.length, 1));
    if (letter.length == 0)
      appendNumber(out, "\\x%02X", static_cast<unsigned char>(utf8[0]));
    else if (actsOnTerminal(letter.value))
      appendEscape(out, letter.value);
    else
      out.append(utf8.substr(0, size));
    utf8.remove_prefix(size);
  }
}

Utf8Text printable(Utf8View utf8) {
  Utf8Text text;
  appendPrintable(text, utf8);
  return text;
}

}  // namespace odmiennik::dictionary
