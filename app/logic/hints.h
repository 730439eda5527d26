// SPDX-License-Identifier: GPL-3.0-or-later
// The quiet texts of the window, asked for by name.
#pragma once

#include <string>
#include <string_view>

#include "data/hints.h"

namespace odmiennik::app {

// The text as data/hints.txt has it, UTF-8.
[[nodiscard]] constexpr std::string_view hint(HintId id) {
  return kHints[static_cast<std::size_t>(id)];
}

// The text with `argument` (UTF-8) in the place of "{1}".
[[nodiscard]] std::string hint(HintId id, std::string_view argument);

// Why letters have not been entered; each is named once, five of them at most:
// "ść" -> "Liter „ś, ć” francuski nie zna.". `letters` is UTF-8 and not empty.
[[nodiscard]] std::string refusalOf(std::string_view letters);

}  // namespace odmiennik::app
