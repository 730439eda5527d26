// SPDX-License-Identifier: GPL-3.0-or-later
// Drawing of the message boxes' icons.
#include "app/common/message_icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <vector>

#include "app/common/colours.h"

namespace odmiennik::app {
namespace {

constexpr qreal kDesignedSide = 48;

// A row of the table: a shape in one colour.
struct Shape {
  QString icon;
  QString colour;
  QString kind;
  std::vector<qreal> numbers;

  [[nodiscard]] QPointF point(std::size_t first) const {
    return {numbers.at(first), numbers.at(first + 1)};
  }
};

Shape shapeOf(const QString& row) {
  const QStringList columns = row.split(QLatin1Char('|'));
  const QStringList words = columns.value(2).simplified().split(QLatin1Char(' '));
  Shape shape{columns.value(0).trimmed(), columns.value(1).trimmed(), words.value(0), {}};
  for (const QString& number : words.mid(1)) shape.numbers.push_back(number.toDouble());
  return shape;
}

// Read when the first message is shown.
const std::vector<Shape>& shapes() {
  static const std::vector<Shape> table = [] {
    std::vector<Shape> rows;
    QFile file(QStringLiteral(":/odmiennik/message_icons.txt"));
    if (!file.open(QIODevice::ReadOnly)) return rows;
    for (const QString& row : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')))
      if (!row.isEmpty() && !row.startsWith(QLatin1Char('#'))) rows.push_back(shapeOf(row));
    return rows;
  }();
  return table;
}

QPainterPath pathOf(const Shape& shape) {
  constexpr std::size_t kStart = 1;  // behind the width
  QPainterPath path(shape.point(kStart));
  const std::size_t step = shape.kind == QLatin1String("curve") ? 6 : 2;
  for (std::size_t i = kStart + 2; i + step <= shape.numbers.size(); i += step)
    if (step == 2)
      path.lineTo(shape.point(i));
    else
      path.cubicTo(shape.point(i), shape.point(i + 2), shape.point(i + 4));
  return path;
}

void draw(QPainter& painter, const Shape& shape, const QColor& colour) {
  if (shape.kind == QLatin1String("disc")) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    return painter.drawEllipse(shape.point(0), shape.numbers.at(2), shape.numbers.at(2));
  }
  const bool isFilled = shape.kind == QLatin1String("area");
  painter.setPen(QPen(colour, shape.numbers.at(0), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(isFilled ? QBrush(colour) : QBrush(Qt::NoBrush));
  painter.drawPath(pathOf(shape));
}

class MessageIconEngine final : public QIconEngine {
 public:
  MessageIconEngine(QString icon, const QPalette& palette)
      : icon_(std::move(icon)),
        headings_(designColours(palette)),
        ground_(palette.color(QPalette::Window)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/,
             QIcon::State /*state*/) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / kDesignedSide, rect.height() / kDesignedSide);
    for (const Shape& shape : shapes())
      if (shape.icon == icon_) draw(*painter, shape, colourOf(shape.colour));
    painter->restore();
  }

  // Without a ground of its own.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new MessageIconEngine(*this); }

 private:
  [[nodiscard]] QColor colourOf(const QString& name) const {
    if (name == QLatin1String("mood")) return headings_.mood;
    return name == QLatin1String("tense") ? headings_.tense : ground_;
  }

  QString icon_;
  HeadingColours headings_;
  QColor ground_;
};

struct NamedIcon {
  QStyle::StandardPixmap picture;
  const char* name;
};
constexpr NamedIcon kIcons[] = {{QStyle::SP_MessageBoxInformation, "information"},
                                {QStyle::SP_MessageBoxQuestion, "question"},
                                {QStyle::SP_MessageBoxWarning, "exclamation"},
                                {QStyle::SP_MessageBoxCritical, "critical"}};

}  // namespace

QIcon messageIcon(QStyle::StandardPixmap picture, const QPalette& palette) {
  for (const NamedIcon& icon : kIcons)
    if (icon.picture == picture)
      return QIcon(new MessageIconEngine(QLatin1String(icon.name), palette));
  return {};
}

}  // namespace odmiennik::app
