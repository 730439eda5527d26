// The choice of the printer.
#pragma once

class QWidget;

namespace odmiennik::app {

// Lets the user choose the printer that everything is printed on from now on. Nothing is printed;
// Cancel and every error leave things as they are.
void setUpPrinter(QWidget& parent);

}  // namespace odmiennik::app
