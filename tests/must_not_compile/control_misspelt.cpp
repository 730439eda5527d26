// SPDX-License-Identifier: GPL-3.0-or-later
// A control that the window's table does not have.
#include "app/controls/control_table.h"

constexpr auto kPosition = odmiennik::app::positionOf("chkZAvoire");
