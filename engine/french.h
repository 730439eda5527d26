// SPDX-License-Identifier: GPL-3.0-or-later
// French literals: written in readable UTF-8, turned into Windows-1252 by the compiler.
#pragma once

#include <cstddef>
#include <string_view>

#include "engine/utf8.h"
#include "engine/windows1252.h"

namespace odmiennik::engine {
namespace detail {

// Not constexpr on purpose: reaching it during compilation is the error message.
void letterOutsideWindows1252();

// A string literal in Windows-1252, usable as a template argument.
template <std::size_t N>
struct FrenchText {
  char bytes[N]{};
  std::size_t length = 0;

  // NOLINTNEXTLINE(google-explicit-constructor): a literal operator's argument converts silently.
  consteval FrenchText(const char (&utf8)[N]) {
    const Utf8View text(utf8, N - 1);
    for (std::size_t position = 0; position < text.size();) {
      const DecodedCodePoint decoded = decodeUtf8(text.substr(position));
      const auto byte = decoded.length == 0 ? std::nullopt : byteOfCodePoint(decoded.value);
      if (!byte) letterOutsideWindows1252();
      bytes[length++] = static_cast<char>(*byte);
      position += static_cast<std::size_t>(decoded.length);
    }
  }
};

}  // namespace detail

inline namespace literals {

// "été"_fr is the three bytes E9 74 E9; a letter outside Windows-1252 does not compile.
template <detail::FrenchText Text>
[[nodiscard]] consteval std::string_view operator""_fr() {
  return {Text.bytes, Text.length};
}

}  // namespace literals
}  // namespace odmiennik::engine
