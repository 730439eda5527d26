// SPDX-License-Identifier: GPL-3.0-or-later
// Opening the window in which a form is looked for.
#pragma once

#include <QPointer>
#include <functional>
#include <string>

#include "app/finding/find_window.h"
#include "app/logic/verb_list_commands.h"
#include "app/main_window/main_window.h"

namespace odmiennik::app {

// The window is created when it is asked for, and with it
// what looks for forms, so that a start costs nothing; closed, it keeps its word for the next time.
class FindMenu {
 public:
  // `serve` lets the letter buttons type into the window's field.
  FindMenu(MainWindow& main, dictionary::UserVerbsFile& userVerbs, MainCommands& commands,
           std::function<void(QLineEdit&)> serve);

  void open();

 private:
  void create();
  [[nodiscard]] QString refusedWord() const;
  void conjugate(const std::string& infinitive, int slot);

  MainWindow& main_;
  dictionary::UserVerbsFile& userVerbs_;
  MainCommands& commands_;
  std::function<void(QLineEdit&)> serve_;
  QPointer<FindWindow> window_;
};

}  // namespace odmiennik::app
