// SPDX-License-Identifier: GPL-3.0-or-later
// A form with what is said before it.
#pragma once

#include "engine/display.h"
#include "engine/utf8.h"

namespace odmiennik::formats {

// Appends the whole phrase of a slot, the subject in full and "que" before a subjunctive: (3) ->
// "nous parlons", (24) -> "j'ai parlé", (50) -> "qu'il parle", (90) -> "parle". Nothing where there
// is no form; what would drive a terminal stands escaped.
void appendPhrase(Utf8Text& out, const engine::Display& shown, int slot);

}  // namespace odmiennik::formats
