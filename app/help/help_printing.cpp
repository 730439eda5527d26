// SPDX-License-Identifier: GPL-3.0-or-later
// Printing of pages.
#include "app/help/help_printing.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>

#include "app/common/look.h"
#include "app/help/page_pieces.h"
#include "app/help/page_text.h"
#include "app/help/paper_document.h"
#include "app/logic/page_breaks.h"

namespace odmiennik::app {
namespace {

constexpr double kMarginMillimetres = 18;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kSmallPoints = 9;
constexpr double kPointsPerInch = 72;
constexpr double kEdgePoints = 0.4;  // half the line between two rows
const QColor kQuiet(0x60, 0x60, 0x60);

// A sheet: its head line, its text, its foot line, in the printer's dots.
struct Sheet {
  QRectF head, text, foot;
};

Sheet sheetOf(const QPrinter& printer) {
  const int resolution = printer.resolution();
  const QRectF paintable = printer.pageLayout().paintRectPixels(resolution);
  const double margin = kMarginMillimetres / kMillimetresPerInch * resolution;
  const QRectF full = printer.pageLayout().fullRectPixels(resolution);
  const QRectF inner = full.adjusted(margin, margin, -margin, -margin) & paintable;
  const QRectF all = inner.translated(-paintable.topLeft());
  const double line = 2 * kSmallPoints / kPointsPerInch * resolution;
  return {{all.left(), all.top(), all.width(), line},
          all.adjusted(0, 1.5 * line, 0, -1.5 * line),
          {all.left(), all.bottom() - line, all.width(), line}};
}

class SheetPrinter {
 public:
  SheetPrinter(QPainter& painter, const Sheet& sheet, const QTextDocument& document, QString title)
      : painter_(painter), sheet_(sheet), document_(document), title_(std::move(title)) {}

  void print(const TextPage& page, int number, int count) {
    printLines(QStringLiteral("Strona %1 z %2").arg(number).arg(count));
    double top = sheet_.text.top();
    for (const Strip& strip : {page.heading, page.part}) {
      printStrip(strip, top);
      top += strip.height();
    }
  }

 private:
  void printLines(const QString& number) {
    QFont small = programFont();
    small.setPointSizeF(kSmallPoints);
    painter_.setFont(small);
    painter_.setPen(QPen(kQuiet, 2 * edge()));
    painter_.drawText(sheet_.head, Qt::AlignLeft | Qt::AlignTop, title_);
    painter_.drawText(sheet_.head, Qt::AlignRight | Qt::AlignTop, QStringLiteral("Odmiennik"));
    painter_.drawLine(sheet_.head.bottomLeft(), sheet_.head.bottomRight());
    painter_.drawText(sheet_.foot, Qt::AlignHCenter | Qt::AlignBottom, number);
  }

  void printStrip(const Strip& strip, double top) {
    if (strip.height() <= 0) return;
    painter_.save();
    painter_.translate(sheet_.text.left(), top - strip.top);
    QAbstractTextDocumentLayout::PaintContext how;
    how.palette = QPalette(Qt::white);
    how.palette.setColor(QPalette::Text, Qt::black);
    how.clip = QRectF(-edge(), strip.top - edge(), sheet_.text.width() + 2 * edge(),
                      strip.height() + 2 * edge());
    painter_.setClipRect(how.clip);
    document_.documentLayout()->draw(&painter_, how);
    painter_.restore();
  }

  [[nodiscard]] double edge() const {
    return kEdgePoints / kPointsPerInch * painter_.device()->logicalDpiX();
  }

  QPainter& painter_;
  const Sheet& sheet_;
  const QTextDocument& document_;
  QString title_;
};

bool isWanted(const QPrinter& printer, int number) {
  if (printer.printRange() != QPrinter::PageRange) return true;
  return number >= printer.fromPage() && number <= printer.toPage();
}

}  // namespace

void printHelpPage(const HelpBook& book, const QUrl& address, QPrinter& printer) {
  const QString title = pageText(book.page(address)).title;
  printer.setDocName(title);
  const Sheet sheet = sheetOf(printer);
  const PaperDocument document(book, address, printer, sheet.text.width());
  const std::vector<TextPage> pages = pagesOf(piecesOf(document), sheet.text.height());
  QPainter painter;
  if (!painter.begin(&printer)) return;
  SheetPrinter sheets(painter, sheet, document, title);
  const int count = static_cast<int>(pages.size());
  bool isFirst = true;
  for (int number = 1; number <= count; ++number) {
    if (!isWanted(printer, number)) continue;
    if (!isFirst) printer.newPage();
    isFirst = false;
    sheets.print(pages[static_cast<std::size_t>(number - 1)], number, count);
  }
}

}  // namespace odmiennik::app
