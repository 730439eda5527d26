// SPDX-License-Identifier: GPL-3.0-or-later
// Printing of a widget.
#include "app/printing/printed_picture.h"

#include <QPainter>
#include <QPrinter>
#include <QWidget>

#include "app/platform/platform.h"

namespace odmiennik::app {
namespace {

constexpr qreal kMarginMillimetres = 12;

// Finer than the eye; a picture of a whole page at more takes hundreds of megabytes.
constexpr int kFinestResolution = 600;

void setUpPage(QPrinter& printer, QSize content) {
  printer.setResolution(qMin(printer.resolution(), kFinestResolution));
  const bool isWide = content.width() > content.height();
  printer.setPageOrientation(isWide ? QPageLayout::Landscape : QPageLayout::Portrait);
  const QMarginsF margins(kMarginMillimetres, kMarginMillimetres, kMarginMillimetres,
                          kMarginMillimetres);
  printer.setPageMargins(margins, QPageLayout::Millimeter);
}

bool hasFailed(const QPrinter& printer) {
  const QPrinter::PrinterState state = printer.printerState();
  return state == QPrinter::Error || state == QPrinter::Aborted;
}

}  // namespace

QRect fitted(QSize size, const QRect& page) {
  QRect place(QPoint(), size.scaled(page.size(), Qt::KeepAspectRatio));
  place.moveCenter(page.center());
  return place;
}

QImage pictureOf(QWidget& widget, int width) {
  const qreal scale = static_cast<qreal>(width) / widget.width();
  QImage picture((QSizeF(widget.size()) * scale).toSize(), QImage::Format_RGB32);
  if (picture.isNull()) return picture;
  picture.setDevicePixelRatio(scale);
  picture.fill(widget.palette().color(QPalette::Window));
  widget.render(&picture);
  return picture;
}

bool printPicture(QWidget& widget, QPrinter& printer) {
  setUpPage(printer, widget.size());
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  const QRect page(QPoint(), printer.pageLayout().paintRectPixels(printer.resolution()).size());
  const QRect place = fitted(widget.size(), page);
  const QImage picture = pictureOf(widget, place.width());
  painter.setRenderHint(QPainter::LosslessImageRendering);
  painter.drawImage(place, picture);
  return !picture.isNull() && painter.end() && !hasFailed(printer) &&
         !platform::hasPrintSystemRefused();
}

}  // namespace odmiennik::app
