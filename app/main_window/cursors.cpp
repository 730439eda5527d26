// SPDX-License-Identifier: GPL-3.0-or-later
// Drawing of the program's pointers.
#include "app/main_window/cursors.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <initializer_list>

#include "app/controls/controls.h"
#include "app/logic/tense_topics.h"

namespace odmiennik::app {
namespace {

constexpr int kSize = 32;
// The ink of the tense headings: dark enough on light grounds, and edged in white on dark ones.
constexpr QRgb kInk = 0xFF1D4F91;
constexpr qreal kEdge = 1.5;

QPainterPath outline(std::initializer_list<QPointF> corners) {
  QPainterPath path;
  path.addPolygon(QPolygonF(QList<QPointF>(corners)));
  path.closeSubpath();
  return path;
}

QPainterPath arrow() {
  return outline({{2, 2}, {2, 21}, {6.5, 17}, {9.5, 24}, {12.8, 22.6}, {9.8, 15.8}, {15.8, 15.4}});
}

QPainterPath bar(qreal left, qreal top, qreal width, qreal height) {
  QPainterPath path;
  path.addRoundedRect(QRectF(left, top, width, height), width / 2, width / 2);
  return path;
}

// A finger, three knuckles beside it, the thumb and the palm.
QPainterPath hand() {
  QPainterPath palm;
  palm.addRoundedRect(QRectF(8, 14, 14, 13), 4, 4);
  const QPainterPath thumb =
      outline({{9, 22}, {4.2, 17.2}, {3.6, 15.2}, {5, 13.8}, {7, 14.2}, {10, 17}});
  return bar(8, 3, 4, 20)
      .united(bar(12, 10.5, 3.6, 12))
      .united(bar(15.2, 11.5, 3.6, 12))
      .united(bar(18.4, 13, 3.6, 12))
      .united(palm)
      .united(thumb);
}

// The glass with its waist, and the boards above and below.
QPainterPath hourglass() {
  QPainterPath boards;
  boards.addRect(QRectF(7, 3, 18, 3));
  boards.addRect(QRectF(7, 26, 18, 3));
  return outline({{9, 6},
                  {23, 6},
                  {23, 9},
                  {17.5, 16},
                  {23, 23},
                  {23, 26},
                  {9, 26},
                  {9, 23},
                  {14.5, 16},
                  {9, 9}})
      .united(boards);
}

QCursor draw(const QPainterPath& shape, const QColor& filling, const QColor& edge, QPoint hotSpot) {
  const qreal ratio = qApp->devicePixelRatio();
  QPixmap picture(QSize(kSize, kSize) * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(edge, kEdge, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(filling);
  painter.drawPath(shape);
  painter.end();
  return QCursor(picture, hotSpot.x(), hotSpot.y());
}

}  // namespace

QCursor arrowCursor() { return draw(arrow(), QColor(kInk), Qt::white, {2, 2}); }

QCursor handCursor() { return draw(hand(), Qt::white, QColor(kInk), {10, 3}); }

QCursor hourglassCursor() { return draw(hourglass(), Qt::white, QColor(kInk), {16, 16}); }

void showHandOverTopics(const Controls& controls) {
  const QCursor pointer = handCursor();
  controls.forEach("lblCzas", [&pointer](const ControlRow& row, QWidget& heading) {
    if (topicOf(row.index)) heading.setCursor(pointer);
  });
}

}  // namespace odmiennik::app
