// SPDX-License-Identifier: GPL-3.0-or-later
// The message boxes of the command.
#include "cli/message_log.h"

namespace odmiennik::cli {

using dictionary::Button;
using dictionary::MessageId;

Button MessageLog::show(MessageId id, Utf8View argument) {
  const dictionary::MessageRow& message = dictionary::row(id);
  texts_.push_back(dictionary::messageText(id, argument));
  // Only trouble with files wears the critical icon.
  hasFileTrouble_ = hasFileTrouble_ || message.icon == dictionary::Icon::critical;
  for (const Button refusal : {Button::cancel, Button::no})
    if (dictionary::contains(message.buttons, refusal)) return refusal;
  return Button::ok;
}

void MessageLog::show(engine::Notice notice) { show(dictionary::messageOf(notice)); }

void MessageLog::resetSettings() { show(MessageId::settingsWillBeReset); }

}  // namespace odmiennik::cli
