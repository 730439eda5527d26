// SPDX-License-Identifier: GPL-3.0-or-later
// The choice of the printer.
#include "app/printing/printer_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>

#include "app/common/caption.h"

namespace odmiennik::app {
namespace {

constexpr int kMostCopies = 99;
constexpr int kWidth = 380;

template <typename Widget>
Widget& createNamed(QDialog& window, const char* name) {
  auto* widget = new Widget(&window);
  widget->setObjectName(QString::fromUtf8(name));
  return *widget;
}

}  // namespace

PrinterDialog::PrinterDialog(const PrintChoices& choices, QWidget* parent)
    : SteadyWindow(parent),
      printers_(createNamed<QComboBox>(*this, "cmbDrukarka")),
      papers_(createNamed<QComboBox>(*this, "cmbPapier")),
      copies_(createNamed<QSpinBox>(*this, "txtKopie")),
      isGrey_(createNamed<QCheckBox>(*this, "chkOdcienieSzarości")),
      paper_(choices.paper) {
  setObjectName(QStringLiteral("dlgCommonDialog"));
  // deliberate: the one English caption among Polish windows.
  setWindowTitle(QStringLiteral("Page Setup"));
  copies_.setRange(1, kMostCopies);
  copies_.setValue(choices.copies);
  isGrey_.setText(QStringLiteral("W odcieniach &szarości"));
  isGrey_.setChecked(choices.isGrey);
  layOut();
  listPrinters();
  connect(&printers_, &QComboBox::currentIndexChanged, this, &PrinterDialog::listPapers);
  connect(&papers_, &QComboBox::activated, this,
          [this] { paper_ = papers_.currentData().value<QPageSize>(); });
  printers_.setFocus();
}

void PrinterDialog::layOut() {
  setMinimumWidth(kWidth);
  auto* rows = new QFormLayout(this);
  rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  rows->addRow(captionOf(QStringLiteral("&Drukarka:"), printers_), &printers_);
  rows->addRow(captionOf(QStringLiteral("&Papier:"), papers_), &papers_);
  rows->addRow(QStringLiteral("&Liczba kopii:"), &copies_);
  rows->addRow(QString(), &isGrey_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  accept_ = buttons->button(QDialogButtonBox::Ok);
  rows->addRow(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &PrinterDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &PrinterDialog::reject);
}

void PrinterDialog::listPrinters() {
  for (const QPrinterInfo& info : QPrinterInfo::availablePrinters()) {
    const bool hasDescription = !info.description().isEmpty();
    printers_.addItem(hasDescription ? info.description() : info.printerName(), info.printerName());
  }
  const bool isAny = printers_.count() > 0;
  printers_.setCurrentIndex(printers_.findData(QPrinterInfo::defaultPrinterName()));
  if (isAny && printers_.currentIndex() < 0) printers_.setCurrentIndex(0);
  if (!isAny) printers_.addItem(QStringLiteral("brak drukarki"));
  for (QWidget* control : {static_cast<QWidget*>(&printers_), static_cast<QWidget*>(&papers_),
                           static_cast<QWidget*>(accept_)})
    control->setEnabled(isAny);
  listPapers();
}

// A paper chosen for one printer stays chosen for the next that has it.
void PrinterDialog::listPapers() {
  const QPrinterInfo info = QPrinterInfo::printerInfo(printer());
  papers_.clear();
  for (const QPageSize& paper : info.supportedPageSizes())
    if (papers_.findText(paperName(paper)) < 0)
      papers_.addItem(paperName(paper), QVariant::fromValue(paper));
  const int chosen = paper_ ? papers_.findText(paperName(*paper_)) : -1;
  papers_.setCurrentIndex(chosen >= 0 ? chosen
                                      : papers_.findText(paperName(info.defaultPageSize())));
}

QString PrinterDialog::printer() const { return printers_.currentData().toString(); }

PrintChoices PrinterDialog::choices() const {
  return {.paper = paper_, .copies = copies_.value(), .isGrey = isGrey_.isChecked()};
}

}  // namespace odmiennik::app
