// SPDX-License-Identifier: GPL-3.0-or-later
// The control: a check box of the table is a QCheckBox, and a QAbstractButton.
#include "app/controls/control_table.h"

using namespace odmiennik::app;

constexpr ControlAt<QCheckBox> kBox = positionOf("chkZAvoir");
constexpr ControlAt<QAbstractButton> kButton = positionOf("chkZAvoir");
static_assert(kBox.position() == kButton.position());
