// SPDX-License-Identifier: GPL-3.0-or-later
// A form as it is said: with its pronoun, its variants and its agreement read out.
#pragma once

#include <string_view>

#include "engine/flags.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// The phrase that the text of box `slot` (Windows-1252) stands for: the subject in full,
// "que" before a subjunctive, each variant for itself, feminine forms in full. `flags` are those of
// the verb that is shown. A box that is empty or shows " -- " has none.
// Examples: (51, "promenions") -> "que nous promenions"; (26, "est allé(e)") -> "il est allé lub
// elle est allée"; (27, "sommes allé(e)s") -> "nous sommes allés lub allées"; (97, "être
// allé(e)(s)") -> "être allé lub allée lub allés lub allées"; (0, "paye/paie") -> "je paye lub je
// paie"; (90, "parle") -> "parle !".
[[nodiscard]] Utf8Text formPhrase(int slot, std::string_view text,
                                  const engine::EngineFlags& flags);

// The box that a tip speaks of; the text as formPhrase() takes it.
struct ShownForm {
  int slot;
  std::string_view text;
  const engine::EngineFlags& flags;
  bool isOwn = false;  // from the user's own file
  bool isEditing = false;
  std::string_view norm = {};  // what today's norm has in its place, if it departs
};

// What is told of a form that departs from today's norm: normLine("lit") -> "Dzisiejsza
// norma: lit"; of a form that the norm lacks, " -- ", it says so; nothing of the empty text.
[[nodiscard]] Utf8Text normLine(std::string_view norm);

// What a form box says of itself, line below line: the phrase, the norm that it departs
// from, where it comes from, what the keys do. Nothing of a box that is empty, but for the entry
// box, which says what is typed there. Example: "je parle", below it "F1: kiedy używa się tej
// formy".
[[nodiscard]] Utf8Text formTip(const ShownForm& shown);

}  // namespace odmiennik::app
