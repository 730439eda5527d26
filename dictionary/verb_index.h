// SPDX-License-Identifier: GPL-3.0-or-later
// The general verb index: 7342 French verbs with group, transitivity and auxiliary.
#pragma once

#include <string_view>

#include "engine/ports.h"

namespace odmiennik::dictionary {

// All texts are Windows-1252 views of compiled-in data. The index's order is the dictionary's.
class GeneralVerbIndex final : public engine::VerbIndex {
 public:
  // "laver" -> "|1|1|2|1"; the empty text for a verb that is not in the index.
  [[nodiscard]] std::string_view record(std::string_view infinitive) override;
};

[[nodiscard]] int verbCount();

// The number of verbs filed under a letter 'a' to 'z': that of the unaccented first character, œ
// as o. Any other character has none.
[[nodiscard]] int verbCount(char letter);

// The k-th verb of a letter, 1 <= k <= verbCount(letter).
[[nodiscard]] std::string_view verbOfLetter(char letter, int k);

// Verb `position` of the whole index, 0 <= position < verbCount().
[[nodiscard]] std::string_view verbAt(int position);

// The verb that completes `prefix`: the prefix itself if it is a verb, else the first verb that
// begins with it, letter for letter; the empty text when none does, and for the empty prefix.
[[nodiscard]] std::string_view completion(std::string_view prefix);

}  // namespace odmiennik::dictionary
