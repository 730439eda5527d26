// SPDX-License-Identifier: GPL-3.0-or-later
// An explanation read back: what its remarks say, and the form that follows from them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "explainer/explanation.h"

namespace odmiennik::testing {

// "nous mangeons" -> "mangeons"
[[nodiscard]] std::string withoutSubject(const std::string& form);

// What stands in the places of {1}, {2} and {3} of the remark's phrase; nothing when the remark is
// not that phrase, filled in.
[[nodiscard]] std::optional<std::vector<std::string>> argumentsOf(const explainer::Remark& remark);

// The form (UTF-8) that one gets who does what the remarks tell: stem, change of spelling, ending,
// auxiliary, participle, pronouns. `stored` stands where a remark only says that a form is as it is
// in a table: it is asked for the variant.
[[nodiscard]] std::string formBy(const explainer::Remarks& remarks, const std::string& stored);

}  // namespace odmiennik::testing
