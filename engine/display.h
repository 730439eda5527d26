// SPDX-License-Identifier: GPL-3.0-or-later
// What the window shows of a conjugation: the texts of the boxes, pronouns and captions.
#pragma once

#include <array>
#include <string_view>

#include "engine/flags.h"
#include "engine/noting.h"
#include "engine/pronouns.h"

namespace odmiennik::engine {

// Views of the form table and of constant texts: valid until the table changes. `pronouns` stand in
// front of boxes 0 to 89.
struct Display {
  std::array<std::string_view, kSlotCount> boxes;
  SubjectPronouns pronouns;
  SubjunctiveCaptions captions;
  bool isPronominal = false;  // as at display: the flag itself is cleared after the conjugation
};

// Shows the table. An impersonal verb first loses every slot but the il forms, the infinitives and
// the two participles; one of the third person alone keeps il and ils. An empty slot shows " -- ",
// while editing nothing, so that it can be typed into. A reflexive pronoun in a slot is shown only
// when the verb is conjugated pronominally.
template <typename Forms>
void display(Forms& forms, const EngineFlags& flags, bool isEditing, Display& shown);

}  // namespace odmiennik::engine
