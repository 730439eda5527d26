// SPDX-License-Identifier: GPL-3.0-or-later
// The choice of the printer.
#pragma once

#include "app/printing/print_choices.h"

class QWidget;

namespace odmiennik::app {

// Lets the user choose the printer that everything is printed on from now on, and how: `kept` is
// what was chosen last and takes what is chosen now. Nothing is printed; Cancel and every error
// leave things as they are.
void setUpPrinter(QWidget& parent, PrintChoices& kept);

}  // namespace odmiennik::app
