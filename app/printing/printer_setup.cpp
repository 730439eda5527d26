// The printer dialog.
#include "app/printing/printer_setup.h"

#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

#include "app/platform/printers.h"

namespace odmiennik::app {
namespace {

// The dialog chooses; it does not print.
void renamePrintButton(const QPrintDialog& dialog) {
  const auto* buttons = dialog.findChild<QDialogButtonBox*>();
  QPushButton* accept = buttons == nullptr ? nullptr : buttons->button(QDialogButtonBox::Ok);
  if (accept != nullptr) accept->setText(QStringLiteral("OK"));
}

}  // namespace

void setUpPrinter(QWidget& parent) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, &parent);
  dialog.setObjectName(QStringLiteral("dlgCommonDialog"));
  // deliberate: the one English caption among Polish windows.
  dialog.setWindowTitle(QStringLiteral("Page Setup"));
  dialog.setOptions({});
  renamePrintButton(dialog);
  if (dialog.exec() != QDialog::Accepted) return;
  platform::makeDefaultPrinter(printer.printerName().toStdString());
}

}  // namespace odmiennik::app
