// SPDX-License-Identifier: GPL-3.0-or-later
// Fields that stand between quotation marks where they must.
#pragma once

#include "engine/utf8.h"

namespace odmiennik::formats {

// Appends a field; one that holds any of `marks` stands between quotation marks, its own ones
// doubled: (a"b, ",\"") -> "a""b".
inline void appendField(Utf8Text& out, Utf8View text, Utf8View marks) {
  if (text.find_first_of(marks) == Utf8View::npos) {
    out.append(text);
    return;
  }
  out.push_back('"');
  for (const char letter : text) out.append(letter == '"' ? 2 : 1, letter);
  out.push_back('"');
}

}  // namespace odmiennik::formats
