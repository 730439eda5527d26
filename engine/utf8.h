// SPDX-License-Identifier: GPL-3.0-or-later
// UTF-8 text as a type of its own, so that it is never taken for French text (Windows-1252).
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace odmiennik {

// What the compiler tells the two encodings apart by. Literals and other UTF-8 text convert; a
// std::string or a std::string_view, which are French inside the program, do not compile in their
// place, nor these in theirs.
struct Utf8Traits : std::char_traits<char> {};
using Utf8View = std::basic_string_view<char, Utf8Traits>;
using Utf8Text = std::basic_string<char, Utf8Traits>;

// Bytes that come in as UTF-8, or are plain ASCII, by the word of whoever calls: the program's
// arguments, a file's name, digits. Nothing is checked; that is decodeUtf8's.
[[nodiscard]] constexpr Utf8View asUtf8(std::string_view bytes) {
  return {bytes.data(), bytes.size()};
}

// The bytes alone, for what knows of no encoding: a stream, a file, the system.
[[nodiscard]] constexpr std::string_view bytesOf(Utf8View utf8) {
  return {utf8.data(), utf8.size()};
}

// Whether the texts differ at most in the case of A to Z, as names of files may on one system or
// another: isSameButForCase("czas.DAT", "Czas.dat").
[[nodiscard]] constexpr bool isSameButForCase(Utf8View left, Utf8View right) {
  const auto small = [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  };
  return std::ranges::equal(left, right, {}, small, small);
}
static_assert(isSameButForCase("czas.DAT", "Czas.dat") && !isSameButForCase("Ł", "ł"));

// decimal(-12) -> "-12"
template <typename Number>
[[nodiscard]] Utf8Text decimal(Number number) {
  return Utf8Text(asUtf8(std::to_string(number)));
}

}  // namespace odmiennik
