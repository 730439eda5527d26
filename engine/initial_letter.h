// SPDX-License-Identifier: GPL-3.0-or-later
// The letter under which a dictionary files a word.
#pragma once

#include <string_view>

#include "engine/french.h"

namespace odmiennik::engine {

// The unaccented lower-case letter of a word's first character (Windows-1252), œ as o; 0 for a
// character that no French word begins with: initialLetter("é"_fr[0]) -> 'e'.
[[nodiscard]] constexpr char initialLetter(char first) {
  struct Accented {
    char plain;
    std::string_view letters;
  };
  constexpr Accented kAccented[] = {{'a', "àâäæ"_fr}, {'c', "ç"_fr},   {'e', "èéêë"_fr},
                                    {'i', "îï"_fr},   {'o', "ôöœ"_fr}, {'u', "ùûü"_fr}};
  if (first >= 'a' && first <= 'z') return first;
  for (const Accented& row : kAccented)
    if (row.letters.find(first) != std::string_view::npos) return row.plain;
  return 0;
}

}  // namespace odmiennik::engine
