// SPDX-License-Identifier: GPL-3.0-or-later
// Typing into the boxes.
#include "app/typing/typing.h"

#include "app/controls/main_menu.h"
#include "app/main_window/main_window.h"

namespace odmiennik::app {

Typing::Typing(MainWindow& window, UserStore& store, dictionary::MessageBoxes& messages,
               HelpOpener& help)
    : current_(window.boxes()),
      completion_(window.boxes().entry(),
                  menuItem(*window.menuBar(), "mnuCzasownikAutouzupełnianie"), store),
      keys_(window.boxes(), *window.menuBar(), completion_, messages, help),
      refused_(window.boxes()),
      letters_(window.controls(), current_),
      auxiliary_(window.controls().get<QCheckBox>(positionOf("chkZAvoir")), window.boxes(),
                 current_),
      enter_(window.controls(), window.boxes(), menuItem(*window.menuBar(), "mnuEdycjaOdmień")),
      menu_(window, window.boxes()) {}

}  // namespace odmiennik::app
