// Foreign text on a terminal: shown, never obeyed.
#pragma once

#include <string>
#include <string_view>

namespace odmiennik::dictionary {

// Whether the code point acts instead of standing there as a letter: control characters, what
// changes the direction of writing, what is not seen or breaks the line ("U+202E", "U+200B").
[[nodiscard]] bool actsOnTerminal(char32_t codePoint);

// Appends text of any origin for people to read: what acts on a terminal, and each byte that is no
// UTF-8, as an escape: "a<ESC>[31m" -> "a\x1B[31m", U+0085 -> "\u0085", U+202E -> "\u202E". All
// else stays as it is, a backslash too.
void appendPrintable(std::string& out, std::string_view utf8);

// The text alone.
[[nodiscard]] std::string printable(std::string_view utf8);

}  // namespace odmiennik::dictionary
