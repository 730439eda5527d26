// SPDX-License-Identifier: GPL-3.0-or-later
// A check box is no QLabel.
#include "app/controls/control_table.h"

using namespace odmiennik::app;

constexpr ControlAt<QLabel> kBox = positionOf("chkZAvoir");
