// SPDX-License-Identifier: GPL-3.0-or-later
// The wording of message boxes.
#include "dictionary/messages.h"

namespace odmiennik::dictionary {

Utf8Text messageText(MessageId id, Utf8View argument) {
  constexpr Utf8View kPlace = "{1}";
  Utf8Text text(row(id).text);
  if (const auto at = text.find(kPlace); at != Utf8Text::npos)
    text.replace(at, kPlace.size(), argument);
  return text;
}

}  // namespace odmiennik::dictionary
