// SPDX-License-Identifier: GPL-3.0-or-later
// The window's quiet texts, filled in.
#include "app/logic/hints.h"

#include <algorithm>
#include <vector>

#include "engine/windows1252.h"

namespace odmiennik::app {
namespace {

// Alphabets come before, signs from the general punctuation on.
constexpr char32_t kFirstSign = 0x2000;

bool isSign(Utf8View letter) { return engine::decodeUtf8(letter).value >= kFirstSign; }

// The letters of a text, each once.
std::vector<Utf8View> lettersOf(Utf8View text) {
  std::vector<Utf8View> letters;
  while (!text.empty()) {
    const auto length = static_cast<std::size_t>(std::max(engine::decodeUtf8(text).length, 1));
    const Utf8View letter = text.substr(0, length);
    if (std::ranges::find(letters, letter) == letters.end()) letters.push_back(letter);
    text.remove_prefix(length);
  }
  return letters;
}

Utf8Text listOf(const std::vector<Utf8View>& letters) {
  constexpr std::size_t kNamed = 5;
  Utf8Text list;
  for (std::size_t i = 0; i < letters.size() && i < kNamed; ++i)
    list.append(i == 0 ? "" : ", ").append(letters[i]);
  return letters.size() > kNamed ? list + "…" : list;
}

}  // namespace

Utf8Text hint(HintId id, Utf8View argument) {
  Utf8Text text(hint(id));
  const auto place = text.find("{1}");
  return place == std::string::npos ? text : text.replace(place, 3, argument);
}

Utf8Text refusalOf(Utf8View text) {
  const std::vector<Utf8View> letters = lettersOf(text);
  const bool areSigns = std::ranges::all_of(letters, isSign);
  const bool isOne = letters.size() == 1;
  if (areSigns) return hint(isOne ? HintId::signRefused : HintId::signsRefused, listOf(letters));
  return hint(isOne ? HintId::letterRefused : HintId::lettersRefused, listOf(letters));
}

}  // namespace odmiennik::app
