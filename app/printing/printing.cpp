// SPDX-License-Identifier: GPL-3.0-or-later
// Printing the main window.
#include "app/printing/printing.h"

#include <QGuiApplication>
#include <QPointer>
#include <QPrinter>
#include <QPrinterInfo>
#include <vector>

#include "app/common/text.h"
#include "app/main_window/main_window.h"
#include "app/platform/platform.h"
#include "app/printing/paper_look.h"
#include "app/printing/printed_picture.h"
#include "app/printing/printer_dialog.h"

namespace odmiennik::app {
namespace {

// Hides the controls that mean nothing on paper for as long as it lives; then they are shown again,
// the last one first, and the focus is back where it was.
class HiddenForPrinting {
 public:
  explicit HiddenForPrinting(QWidget& window) : focus_(window.window()->focusWidget()) {
    constexpr int kLetters = 13;
    hide(window, QStringLiteral("chkZAvoir"));
    for (int letter = 0; letter < kLetters; ++letter)
      hide(window, QStringLiteral("cmdFrancuskaLitera_%1").arg(letter));
  }
  HiddenForPrinting(const HiddenForPrinting&) = delete;
  HiddenForPrinting& operator=(const HiddenForPrinting&) = delete;
  ~HiddenForPrinting() {
    for (auto control = hidden_.rbegin(); control != hidden_.rend(); ++control)
      if (*control) (*control)->show();
    if (focus_) focus_->setFocus();
  }

 private:
  void hide(const QWidget& window, const QString& name) {
    auto* control = window.findChild<QWidget*>(name);
    if (control == nullptr || control->isHidden()) return;
    control->hide();
    hidden_.emplace_back(control);
  }

  QPointer<QWidget> focus_;
  std::vector<QPointer<QWidget>> hidden_;
};

class Hourglass {
 public:
  Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
  ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
};

// Without a printer Qt would write a file instead; a stopped queue would keep the page for itself.
bool isReady(const QPrinterInfo& printer) {
  return !printer.isNull() && printer.state() != QPrinter::Error &&
         printer.state() != QPrinter::Aborted;
}

bool printOnPaper(MainWindow& window, const PrintChoices& choices) {
  const Hourglass hourglass;
  const QPrinterInfo current = QPrinterInfo::defaultPrinter();
  if (!isReady(current)) return false;
  QPrinter printer(current, QPrinter::HighResolution);
  printer.setDocName(window.windowTitle());
  apply(choices, current, printer);
  const PaperLook look(window);
  return printPicture(*window.centralWidget(), printer);
}

}  // namespace

Printing::Printing(MainWindow& main, dictionary::MessageBoxes& messages)
    : main_(main), messages_(messages) {}

void Printing::setUp() {
  PrinterDialog dialog(choices_, &main_);
  if (dialog.exec() != QDialog::Accepted) return;
  choices_ = dialog.choices();
  platform::makeDefaultPrinter(toUtf8(dialog.printer()));
}

bool Printing::print() {
  const HiddenForPrinting hidden(*main_.centralWidget());
  const bool isPrinted = printOnPaper(main_, choices_);
  if (!isPrinted) messages_.show(dictionary::MessageId::printerNotReady);
  return isPrinted;
}

}  // namespace odmiennik::app
