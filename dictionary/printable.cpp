// Escapes for what a terminal would obey.
#include "dictionary/printable.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "engine/windows1252.h"

namespace odmiennik::dictionary {
namespace {

struct Range {
  char32_t first;
  char32_t last;
};

// In ascending order.
constexpr Range kActing[] = {
    {0x0000, 0x001F},    // controls
    {0x007F, 0x009F},    // delete and the second set of controls
    {0x00AD, 0x00AD},    // soft hyphen
    {0x061C, 0x061C},    // Arabic letter mark
    {0x180E, 0x180E},    // Mongolian vowel separator
    {0x200B, 0x200F},    // without width; joiners; marks of direction
    {0x2028, 0x202E},    // line and paragraph ends; embeddings and overrides of direction
    {0x2060, 0x206F},    // without width; isolates of direction
    {0xFE00, 0xFE0F},    // variation selectors
    {0xFEFF, 0xFEFF},    // byte-order mark
    {0xFFF9, 0xFFFB},    // annotations
    {0xE0000, 0xE0FFF},  // tags, further selectors
};

void appendNumber(std::string& out, const char* format, char32_t number) {
  char text[16];
  const int size = std::snprintf(text, sizeof text, format, static_cast<unsigned>(number));
  out.append(text, static_cast<std::size_t>(size));
}

void appendEscape(std::string& out, char32_t codePoint) {
  if (codePoint < 0x80)
    appendNumber(out, "\\x%02X", codePoint);
  else
    appendNumber(out, codePoint > 0xFFFF ? "\\U%08X" : "\\u%04X", codePoint);
}

}  // namespace

bool actsOnTerminal(char32_t codePoint) {
  const auto* range = std::ranges::lower_bound(kActing, codePoint, {}, &Range::last);
  return range != std::end(kActing) && codePoint >= range->first;
}

void appendPrintable(std::string& out, std::string_view utf8) {
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

std::string printable(std::string_view utf8) {
  std::string text;
  appendPrintable(text, utf8);
  return text;
}

}  // namespace odmiennik::dictionary
