// SPDX-License-Identifier: GPL-3.0-or-later
// The printer dialog.
#include "app/printing/printer_setup.h"

#include "app/common/text.h"
#include "app/platform/platform.h"
#include "app/printing/printer_dialog.h"

namespace odmiennik::app {

void setUpPrinter(QWidget& parent, PrintChoices& kept) {
  PrinterDialog dialog(kept, &parent);
  if (dialog.exec() != QDialog::Accepted) return;
  kept = dialog.choices();
  platform::makeDefaultPrinter(toUtf8(dialog.printer()));
}

}  // namespace odmiennik::app
