// SPDX-License-Identifier: GPL-3.0-or-later
// A menu cannot be chosen, so it is no item.
#include "app/controls/menu_table.h"

constexpr odmiennik::app::MenuItemName kItem = "mnuPlik";
