// SPDX-License-Identifier: GPL-3.0-or-later
// The wording of message boxes.
#include "dictionary/messages.h"

namespace odmiennik::dictionary {

std::string messageText(MessageId id, std::string_view argument) {
  constexpr std::string_view kPlace = "{1}";
  std::string text(row(id).text);
  if (const auto at = text.find(kPlace); at != std::string::npos)
    text.replace(at, kPlace.size(), argument);
  return text;
}

}  // namespace odmiennik::dictionary
