// SPDX-License-Identifier: GPL-3.0-or-later
// The wording of every message box, asked for by name.
#pragma once

#include <string>
#include <string_view>

#include "data/messages.h"
#include "engine/ports.h"

namespace odmiennik::dictionary {

// The application's title, shown by a message that has none of its own.
inline constexpr std::string_view kApplicationTitle = "Odmiennik";

// The row of a message: row(MessageId::saveEditedVerb).icon is Icon::question.
[[nodiscard]] constexpr const MessageRow& row(MessageId id) {
  return kMessages[static_cast<std::size_t>(id)];
}

// The text with `argument` (UTF-8) in the place of "{1}".
[[nodiscard]] std::string messageText(MessageId id, std::string_view argument = {});

// Whoever puts message boxes before the user; a test answers in the user's stead.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  // Shows the message and returns the button that closed it. `argument` (UTF-8) fills "{1}".
  virtual Button show(MessageId id, std::string_view argument = {}) = 0;
};

// The message in which a notice of the engine is worded.
[[nodiscard]] constexpr MessageId messageOf(engine::Notice notice) {
  return notice == engine::Notice::notConjugable ? MessageId::notConjugable
                                                 : MessageId::conjugatedRegularly;
}

}  // namespace odmiennik::dictionary
