// SPDX-License-Identifier: GPL-3.0-or-later
// Look-up in the general verb index.
#include "dictionary/verb_index.h"

#include "dictionary/compiled_texts.h"
#include "dictionary/verb_index_data.h"
#include "engine/plain_letters.h"

namespace odmiennik::dictionary {
namespace {

constexpr int kLetterCount = 26;

std::optional<std::size_t> positionOfVerb(std::string_view infinitive) {
  return positionOf(infinitive, data::kVerbHash, data::kVerbHashSize, data::kVerbOffsets,
                    data::kVerbBytes);
}

bool isLetter(char letter) { return letter >= 'a' && letter <= 'z'; }

}  // namespace

std::string_view GeneralVerbIndex::record(std::string_view infinitive) {
  const auto position = positionOfVerb(infinitive);
  if (!position) return {};
  return textAt(data::kRecordOffsets, data::kRecordBytes, data::kRecordOfVerb[*position]);
}

int verbCount() { return data::kFirstOfLetter[kLetterCount]; }

int verbCount(char letter) {
  if (!isLetter(letter)) return 0;
  return data::kFirstOfLetter[letter - 'a' + 1] - data::kFirstOfLetter[letter - 'a'];
}

std::string_view verbAt(int position) {
  return textAt(data::kVerbOffsets, data::kVerbBytes, static_cast<std::size_t>(position));
}

std::string_view verbOfLetter(char letter, int k) {
  return verbAt(data::kFirstOfLetter[letter - 'a'] + k - 1);
}

std::string_view completion(std::string_view prefix) {
  if (prefix.empty()) return {};
  if (const auto exact = positionOfVerb(prefix)) return verbAt(static_cast<int>(*exact));
  const char letter = engine::initialLetter(prefix[0]);
  for (int k = 1; k <= verbCount(letter); ++k)
    if (verbOfLetter(letter, k).starts_with(prefix)) return verbOfLetter(letter, k);
  return {};
}

}  // namespace odmiennik::dictionary
