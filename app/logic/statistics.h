// SPDX-License-Identifier: GPL-3.0-or-later
// The sentence of the about window that tells how much the program was used.
#pragma once

#include <cstdint>

#include "engine/utf8.h"

namespace odmiennik::app {

// "Statystyka: odmieniono 3 czasowniki po 2 uruchomieniach.", UTF-8.
// deliberate: 12, 13, 14, 112 … are followed by "czasowniki", as 2, 3, 4 and 22 are.
[[nodiscard]] Utf8Text statisticsSentence(std::int32_t conjugations, std::int32_t runs);

}  // namespace odmiennik::app
