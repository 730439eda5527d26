// SPDX-License-Identifier: GPL-3.0-or-later
// The quiet texts of the window, asked for by name.
#pragma once

#include "data/hints.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// The text as data/hints.txt has it, UTF-8.
[[nodiscard]] constexpr Utf8View hint(HintId id) { return kHints[static_cast<std::size_t>(id)]; }

// The text with `argument` (UTF-8) in the place of "{1}".
[[nodiscard]] Utf8Text hint(HintId id, Utf8View argument);

// Why letters have not been entered; each is named once, five of them at most:
// "ść" -> "Liter „ś, ć” francuski nie zna.". `letters` is UTF-8 and not empty.
[[nodiscard]] Utf8Text refusalOf(Utf8View letters);

}  // namespace odmiennik::app
