// SPDX-License-Identifier: GPL-3.0-or-later
// Opening the window that says how a form came to be.
#pragma once

#include <QPointer>
#include <optional>

#include "app/explaining/explain_window.h"
#include "app/main_window/main_window.h"
#include "explainer/explainer.h"

namespace odmiennik::app {

// The window and the explainer are created when they are asked for, so that a start costs nothing.
class ExplainMenu {
 public:
  // `userVerbs` outlives it.
  ExplainMenu(MainWindow& main, engine::UserVerbs& userVerbs);

  // Tells the story of the form in the box of the slot. When the window is closed the focus goes
  // back to that box; another verb closes it.
  void open(int slot);

 private:
  void create();
  void goBack();

  MainWindow& main_;
  engine::UserVerbs& userVerbs_;
  std::optional<explainer::Explainer> explainer_;
  QPointer<ExplainWindow> window_;
  int slot_ = engine::slot::kInfinitive;
};

}  // namespace odmiennik::app
