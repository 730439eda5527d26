// SPDX-License-Identifier: GPL-3.0-or-later
// Comparison of a verb as it is shown in the two varieties.
#pragma once

#include <string>

#include "engine/display.h"

namespace odmiennik::engine {

// The form of a slot with the pronoun that stands before its box: "j'ai parlé", "ns avons parlé",
// "parlé"; nothing where the verb has no such form.
void setPhrase(std::string& phrase, const Display& shown, int slot);

// Whether the form departs, or the pronoun before one that the norm has: "il lir", "j'yodle".
[[nodiscard]] bool departs(const Display& system, const Display& norm, int slot);

// Whether the pronoun does: of yodler it does, of lire not.
[[nodiscard]] bool pronounDeparts(const Display& system, const Display& norm, int slot);

}  // namespace odmiennik::engine
