// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window shows, as the formats take it.
#pragma once

#include "engine/conjugation.h"
#include "engine/utf8.h"
#include "formats/answer.h"

namespace odmiennik::app {

class MainWindow;

// The conjugation as it stands in the window at this moment, kept: while a verb is edited the texts
// of the boxes, as on paper. Otherwise the entry box may hold the next verb already, and the shown
// one is given.
class ShownAnswer {
 public:
  explicit ShownAnswer(const MainWindow& window);

  [[nodiscard]] formats::Answer answer() const;

  // The infinitive, trimmed; empty where none has been typed.
  [[nodiscard]] const Utf8Text& infinitive() const { return infinitive_; }

 private:
  void take(const engine::Conjugation& shown);

  engine::Conjugation kept_;
  Utf8Text infinitive_;
};

}  // namespace odmiennik::app
