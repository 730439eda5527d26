// SPDX-License-Identifier: GPL-3.0-or-later
// The menu items that open the verb list.
#pragma once

#include <QMainWindow>
#include <QPointer>

#include "app/list/list_window.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// Connects mnuEdycjaLista and mnuEdycjaUsuńCzasownik of `main`. The list window is created when it
// is asked for, belongs to the main window, and is gone once it has been closed.
class ListMenu {
 public:
  ListMenu(QMainWindow& main, const Utf8Text& prefix, dictionary::UserVerbsFile& userVerbs,
           MainCommands& commands);

 private:
  void open(ListPurpose purpose);

  QMainWindow& main_;
  Utf8Text prefix_;
  dictionary::UserVerbsFile& userVerbs_;
  MainCommands& commands_;
  QPointer<ListWindow> window_;
};

}  // namespace odmiennik::app
