// SPDX-License-Identifier: GPL-3.0-or-later
// The choices for printing.
#include "app/printing/print_choices.h"

#include <QPrinter>

namespace odmiennik::app {
namespace {

// Qt knows papers by English names; these have the same in every language.
struct NamedPaper {
  QPageSize::PageSizeId id;
  const char* name;
};
constexpr NamedPaper kNamedPapers[] = {{QPageSize::A3, "A3"}, {QPageSize::A4, "A4"},
                                       {QPageSize::A5, "A5"}, {QPageSize::A6, "A6"},
                                       {QPageSize::B4, "B4"}, {QPageSize::B5, "B5"}};

}  // namespace

QString paperName(const QPageSize& paper) {
  for (const auto& [id, name] : kNamedPapers)
    if (paper.id() == id) return QLatin1String(name);
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
