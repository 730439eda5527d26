// SPDX-License-Identifier: GPL-3.0-or-later
// The readable layout in which golden files show a conjugation: a tense a line.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace odmiennik::testing {

// "Indicatif présent, je" for slot 0: where a slot is, in words.
[[nodiscard]] std::string nameOfSlot(int slot);

// 22 lines, one a tense: its name, then the texts of its slots (UTF-8) with " | " between them; an
// empty slot shows as "-". Example: "indicatif présent   parle | parles | parle | …".
[[nodiscard]] std::string layOut(const std::function<std::string(int)>& textOfSlot);

}  // namespace odmiennik::testing
