// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures read with care: a help file may be damaged, or made to do harm.
#include "app/help/page_picture.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>

namespace odmiennik::app {
namespace {

constexpr QSize kLargest(1600, 1600);

QImage transparentPoint() {
  QImage picture(1, 1, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  return picture;
}

// The size is asked of the head alone: a small file can hold a picture that fills the memory.
QImage readPng(QByteArray png) {
  QBuffer bytes(&png);
  QImageReader reader(&bytes, "png");
  reader.setAutoDetectImageFormat(false);
  const QSize size = reader.size();
  if (size.isEmpty() || size.boundedTo(kLargest) != size) return {};
  return reader.read();
}

}  // namespace

QImage pagePicture(const QByteArray& png, int percent, std::optional<int> widest) {
  constexpr int kWhole = 100;
  const QImage picture = readPng(png);
  if (picture.isNull()) return transparentPoint();
  const int wanted = picture.width() * percent / kWhole;
  const int width = std::max(1, std::min(wanted, widest.value_or(wanted)));
  return width == picture.width() ? picture
                                  : picture.scaledToWidth(width, Qt::SmoothTransformation);
}

}  // namespace odmiennik::app
