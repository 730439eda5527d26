// SPDX-License-Identifier: GPL-3.0-or-later
// The wording of every message box, asked for by name.
#pragma once

#include "data/messages.h"
#include "engine/ports.h"
#include "engine/utf8.h"

namespace odmiennik::dictionary {

// The application's title, shown by a message that has none of its own.
inline constexpr Utf8View kApplicationTitle = "Odmiennik";

// The row of a message: row(MessageId::saveEditedVerb).icon is Icon::question.
[[nodiscard]] constexpr const MessageRow& row(MessageId id) {
  return kMessages[static_cast<std::size_t>(id)];
}

// The text with `argument` in the place of "{1}".
[[nodiscard]] Utf8Text messageText(MessageId id, Utf8View argument = {});

// Whoever puts message boxes before the user; a test answers in the user's stead.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  // Shows the message and returns the button that closed it. `argument` fills "{1}".
  virtual Button show(MessageId id, Utf8View argument = {}) = 0;
};

// The message in which a notice of the engine is worded.
[[nodiscard]] constexpr MessageId messageOf(engine::Notice notice) {
  return notice == engine::Notice::notConjugable ? MessageId::notConjugable
                                                 : MessageId::conjugatedRegularly;
}

}  // namespace odmiennik::dictionary
