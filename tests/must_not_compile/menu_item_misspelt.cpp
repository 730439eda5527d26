// SPDX-License-Identifier: GPL-3.0-or-later
// An item that the menu's table does not have.
#include "app/controls/menu_table.h"

constexpr odmiennik::app::MenuItemName kItem = "mnuPlikKonec";
