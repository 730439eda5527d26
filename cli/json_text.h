// SPDX-License-Identifier: GPL-3.0-or-later
// JSON strings of the two encodings that the program knows.
#pragma once

#include <string_view>

#include "engine/utf8.h"

namespace odmiennik::cli {

// What would act on a terminal is escaped, controls of both sets and marks of direction alike: JSON
// reads it as the same text.

// Appends `french` (Windows-1252) as a JSON string, quotes included: été"s -> "été\"s".
void appendJsonFrench(Utf8Text& out, std::string_view french);

// Appends `utf8`, which must be well-formed, as a JSON string, quotes included.
void appendJsonUtf8(Utf8Text& out, Utf8View utf8);

}  // namespace odmiennik::cli
