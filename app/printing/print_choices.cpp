// The choices for printing.
#include "app/printing/print_choices.h"

#include <QPrinter>

namespace odmiennik::app {
namespace {

// Qt knows papers by English names; these have the same in every language.
constexpr QPageSize::PageSizeId kNamedPapers[] = {QPageSize::A3, QPageSize::A4, QPageSize::A5,
                                                  QPageSize::A6, QPageSize::B4, QPageSize::B5};

}  // namespace

QString paperName(const QPageSize& paper) {
  for (const QPageSize::PageSizeId named : kNamedPapers)
    if (paper.id() == named) return QPageSize::key(named);
  const QSize size = paper.size(QPageSize::Millimeter).toSize();
  return QStringLiteral("%1 × %2 mm").arg(size.width()).arg(size.height());
}

void apply(const PrintChoices& choices, const QPrinterInfo& info, QPrinter& printer) {
  if (choices.paper && info.supportedPageSizes().contains(*choices.paper))
    printer.setPageSize(*choices.paper);
  printer.setCopyCount(choices.copies);
  if (choices.isGrey) printer.setColorMode(QPrinter::GrayScale);
}

}  // namespace odmiennik::app
