// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of a verb beside its forms, as one sentence to be heard.
#pragma once

#include "engine/utf8.h"
#include "engine/verb_information.h"

namespace odmiennik::app {

// Infinitive (UTF-8), group, auxiliary and transitivity: "finir: grupa druga, czasownik posiłkowy
// avoir, przechodni i nieprzechodni." What is not known is said to be so.
[[nodiscard]] Utf8Text spokenVerb(Utf8View infinitive, const engine::VerbInformation& information);

}  // namespace odmiennik::app
