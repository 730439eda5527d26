// SPDX-License-Identifier: GPL-3.0-or-later
// Opening the verb list.
#pragma once

#include <QMainWindow>
#include <QPointer>

#include "app/list/list_window.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// The list window is created when it is asked for, belongs to `main`, and is gone once it has been
// closed.
class ListMenu {
 public:
  ListMenu(QMainWindow& main, const Utf8Text& prefix, dictionary::UserVerbsFile& userVerbs,
           MainCommands& commands, ListWindow::Save save);

  void open(ListPurpose purpose);

 private:
  QMainWindow& main_;
  Utf8Text prefix_;
  dictionary::UserVerbsFile& userVerbs_;
  MainCommands& commands_;
  ListWindow::Save save_;
  QPointer<ListWindow> window_;
};

}  // namespace odmiennik::app
