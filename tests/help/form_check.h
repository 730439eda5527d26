// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a French form written on a help page is the one the engine gives.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace odmiennik::help {

// The ways in which a page may write a form of the form table: the whole text, each variant of
// "paye/paie" and "dû, due" (its first only), and every "(e)" filled in or left out.
//   "sont allé(e)s" -> "sont allé(e)s", "sont allés", "sont allées"
[[nodiscard]] std::vector<std::string> acceptedWritings(std::string_view form);

// A typographic apostrophe made plain, blanks around the form dropped.
[[nodiscard]] std::string plainForm(std::string_view form);

// The form as it stands inside a sentence: "Lève-toi" -> "lève-toi".
[[nodiscard]] std::string insideSentence(std::string form);

}  // namespace odmiennik::help
