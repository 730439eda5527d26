// SPDX-License-Identifier: GPL-3.0-or-later
// What a tense is called outside its mood.
#pragma once

#include "engine/slots.h"
#include "engine/utf8.h"

namespace odmiennik::formats {

// "subjonctif"; no mood begins with an accented letter.
[[nodiscard]] inline Utf8Text moodName(const engine::Tense& tense) {
  Utf8Text mood(tense.mood);
  mood[0] = static_cast<char>(mood[0] - 'A' + 'a');
  return mood;
}

[[nodiscard]] inline bool isIndicative(const engine::Tense& tense) {
  return tense.mood == engine::kTenses.front().mood;
}

// The tense with its mood, but for the indicative: "imparfait", "subjonctif passé".
[[nodiscard]] inline Utf8Text tenseName(const engine::Tense& tense) {
  return (isIndicative(tense) ? Utf8Text() : moodName(tense) + " ") + Utf8Text(tense.name);
}

}  // namespace odmiennik::formats
