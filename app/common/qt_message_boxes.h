// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes on the screen.
#pragma once

#include "dictionary/messages.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// Shows each message over the active window and waits for its answer. Escape answers like the
// button that changes nothing: Cancel, the only OK, or No where it is the default; a question whose
// No throws something away has to be answered.
class QtMessageBoxes final : public dictionary::MessageBoxes {
 public:
  dictionary::Button show(dictionary::MessageId id, Utf8View argument = {}) override;
};

}  // namespace odmiennik::app
