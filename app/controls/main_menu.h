// SPDX-License-Identifier: GPL-3.0-or-later
// The menu bar of the main window.
#pragma once

#include <QAction>
#include <QMenuBar>

#include "app/controls/menu_table.h"

namespace odmiennik::app {

// Fills `bar` from the menu table; menus and items carry their names as object names.
void buildMainMenu(QMenuBar& bar);

// The item of a name, which a misspelt one is not: menuItem(*menuBar(), "mnuPlikKoniec").
[[nodiscard]] QAction& menuItem(const QMenuBar& bar, MenuItemName name);

}  // namespace odmiennik::app
