// SPDX-License-Identifier: GPL-3.0-or-later
// What the driver asks of the window's side: messages, and the reset of the settings.
#pragma once

#include <functional>

#include "dictionary/messages.h"
#include "engine/ports.h"

namespace odmiennik::app {

class WindowShell final : public engine::Shell {
 public:
  // `reset` is the whole reset of the settings, the question before it included.
  WindowShell(dictionary::MessageBoxes& messages, std::function<void()> reset)
      : messages_(messages), reset_(std::move(reset)) {}

  void show(engine::Notice notice) override { messages_.show(dictionary::messageOf(notice)); }

  void resetSettings() override { reset_(); }

 private:
  dictionary::MessageBoxes& messages_;
  std::function<void()> reset_;
};

}  // namespace odmiennik::app
