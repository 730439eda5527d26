// SPDX-License-Identifier: GPL-3.0-or-later
// What is done to an infinitive before it is looked up or compared.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace odmiennik::engine {

// `text` without leading and trailing blanks, of which only U+0020 is one here: "  aller " ->
// "aller", "aller\t" stays.
[[nodiscard]] std::string_view trimmed(std::string_view text);

// Windows-1252 lower case: "ÊTRE" -> "être", "ŒUVRER" -> "œuvrer".
void lowerCase(std::string& text);

// Whether the text begins with "s'" or "se ": "se laver" does, "sembler" and "S'asseoir" do not.
[[nodiscard]] bool hasReflexivePrefix(std::string_view text);

// The text without that prefix: "se laver" -> "laver", "s'asseoir" -> "asseoir". Both tests look at
// the text as given, so that at most one prefix is removed.
[[nodiscard]] std::string_view withoutReflexivePrefix(std::string_view text);

// Sets `out` to the trimmed, lower-cased text with the typographic apostrophe read as "'":
// "  S’Asseoir " -> "s'asseoir".
void normalize(std::string_view text, std::string& out);

// What each byte of a text becomes there.
extern const std::array<char, 256> kNormalLetters;

// An infinitive as it is kept: trimmed, the typographic apostrophe as "'", a reflexive prefix in
// lower case, whatever else it holds as it is: " S’Habiller " -> "s'Habiller".
[[nodiscard]] std::string keptInfinitive(std::string_view text);

// The key under which a stored infinitive is found: normalized and without its reflexive prefix,
// " S’Asseoir" -> "asseoir".
[[nodiscard]] std::string lookupKey(std::string_view infinitive);

}  // namespace odmiennik::engine
