// SPDX-License-Identifier: GPL-3.0-or-later
// French text without control characters.
#pragma once

#include <string_view>

#include "engine/utf8.h"

namespace odmiennik::formats {

// Appends Windows-1252 text to a table that a person or a line-wise program reads, escaped as
// dictionary/printable.h says: no form breaks a line or drives a terminal.
void appendPrintable(Utf8Text& out, std::string_view french);

}  // namespace odmiennik::formats
