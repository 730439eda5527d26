// SPDX-License-Identifier: GPL-3.0-or-later
// The control: an item of the menu's table is a name.
#include "app/controls/menu_table.h"

static_assert(odmiennik::app::MenuItemName("mnuPlikKoniec").text() == "mnuPlikKoniec");
