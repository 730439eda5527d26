// SPDX-License-Identifier: GPL-3.0-or-later
// The menu items that open the verb list.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <string>

#include "app/list/list_window.h"

namespace odmiennik::app {

// Connects mnuEdycjaLista and mnuEdycjaUsuńCzasownik of `main`. The list window is created when it
// is asked for, belongs to the main window, and is gone once it has been closed.
class ListMenu {
 public:
  ListMenu(QMainWindow& main, const std::string& prefix, dictionary::UserVerbsFile& userVerbs,
           MainCommands& commands);

 private:
  void open(ListPurpose purpose);

  QMainWindow& main_;
  std::string prefix_;
  dictionary::UserVerbsFile& userVerbs_;
  MainCommands& commands_;
  QPointer<ListWindow> window_;
};

}  // namespace odmiennik::app
