// SPDX-License-Identifier: GPL-3.0-or-later
// Windows-1250, the encoding in which a Polish help project is read by help compilers and viewers.
#pragma once

#include <string>

#include "engine/utf8.h"

namespace odmiennik::tools {

// "Łaciński é" -> the same text in Windows-1250. Throws std::runtime_error that names the
// letter when the encoding has none for it ("û") and when the text is no UTF-8.
[[nodiscard]] std::string windows1250(Utf8View utf8);

// The same for text inside markup: a letter that the encoding lacks becomes a numeric entity, and
// & < > " become entities as well. "forêt" -> "for&#234;t".
[[nodiscard]] std::string windows1250Markup(Utf8View utf8);

}  // namespace odmiennik::tools
