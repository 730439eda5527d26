// SPDX-License-Identifier: GPL-3.0-or-later
// What the window tells of the form in a box: how it came to be, or who has typed it.
#pragma once

#include <string_view>
#include <vector>

#include "engine/conjugation.h"
#include "engine/utf8.h"
#include "explainer/explainer.h"

namespace odmiennik::app {

// The box that is asked about: its text (Windows-1252) and the verb that the window shows.
struct AskedBox {
  int slot;
  std::string_view text;
  const engine::Conjugation& shown;
  bool isEditing = false;
};

// The story line by line: the form with its pronoun, then what there is to say of it, each part a
// line, and today's norm. A box without a form has the reason, one that somebody has typed into
// says so. Example: "nous mangeons", "reguła -ger (wzór: manger)", "temat mang-, e przed o,
// końcówka -ons".
[[nodiscard]] std::vector<Utf8Text> storyOf(explainer::Explainer& explainer, const AskedBox& asked);

}  // namespace odmiennik::app
