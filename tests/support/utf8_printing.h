// SPDX-License-Identifier: GPL-3.0-or-later
// UTF-8 text as GoogleTest prints it: readable, not as a list of numbers.
#pragma once

#include <ostream>

#include "engine/utf8.h"

namespace odmiennik {

inline std::ostream& operator<<(std::ostream& out, Utf8View text) { return out << bytesOf(text); }

inline void PrintTo(Utf8View text, std::ostream* out) { *out << '"' << text << '"'; }
inline void PrintTo(const Utf8Text& text, std::ostream* out) { PrintTo(Utf8View(text), out); }

}  // namespace odmiennik
