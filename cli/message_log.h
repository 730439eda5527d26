// SPDX-License-Identifier: GPL-3.0-or-later
// The message boxes of the command: gathered for the answer at hand instead of being shown.
#pragma once

#include <vector>

#include "dictionary/messages.h"
#include "engine/ports.h"
#include "engine/utf8.h"

namespace odmiennik::cli {

// Every box is answered as a user would who wants nothing changed: Cancel where there is one.
class MessageLog final : public dictionary::MessageBoxes, public engine::Shell {
 public:
  dictionary::Button show(dictionary::MessageId id, Utf8View argument = {}) override;
  void show(engine::Notice notice) override;
  void resetSettings() override;

  // The texts since the last beginAnswer, in order, UTF-8.
  [[nodiscard]] const std::vector<Utf8Text>& texts() const { return texts_; }
  void beginAnswer() { texts_.clear(); }

  // Whether any message spoke of trouble with a file.
  [[nodiscard]] bool hasFileTrouble() const { return hasFileTrouble_; }

 private:
  std::vector<Utf8Text> texts_;
  bool hasFileTrouble_ = false;
};

}  // namespace odmiennik::cli
