// The frames of boxes.
#include "app/common/program_style.h"

#include <qdrawutil.h>
#include <QCheckBox>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "app/common/colours.h"
#include "app/common/message_icons.h"

namespace odmiennik::app {
namespace {

// What is kept of a frame: its corners; what lies between them is drawn out.
constexpr int kCorner = 4;
constexpr int kSide = 3 * kCorner;

bool isPlain(const QStyleOption& option) {
  return option.rect.width() > kSide && option.rect.height() > kSide;
}

// On black ground; the box that is typed into is lit already.
bool needsEdge(const QStyleOption& option) {
  return losesEdges(option.palette) && !option.state.testFlag(QStyle::State_HasFocus);
}

QMargins corners(int size) { return {size, size, size, size}; }

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  if (element != PE_FrameLineEdit || !isPlain(*option))
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  const qreal pixelRatio = painter->device()->devicePixelRatio();
  const QPixmap frame = frameOf(*option, pixelRatio);
  qDrawBorderPixmap(painter, option->rect, corners(kCorner), frame, frame.rect(),
                    corners(qRound(kCorner * pixelRatio)));
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
  const bool isSquare = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight;
  if (isSquare && option != nullptr && qobject_cast<const QCheckBox*>(widget) != nullptr)
    return option->fontMetrics.height();
  return QProxyStyle::pixelMetric(metric, option, widget);
}

// The style leaves as much room for the title as a check box needs, which a title in small letters
// does not.
QRect ProgramStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                   SubControl subControl, const QWidget* widget) const {
  QRect place = QProxyStyle::subControlRect(control, option, subControl, widget);
  if (control != CC_GroupBox || subControl != SC_GroupBoxFrame) return place;
  const int square = QProxyStyle::pixelMetric(PM_IndicatorHeight, option, widget);
  place.setTop(place.top() - std::max(0, square - option->fontMetrics.height()));
  return place;
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const {
  const QIcon own =
      messageIcon(picture, widget != nullptr ? widget->palette() : QGuiApplication::palette());
  return own.isNull() ? QProxyStyle::standardIcon(picture, option, widget) : own;
}

QPixmap ProgramStyle::frameOf(const QStyleOption& option, qreal pixelRatio) const {
  const QString key = QStringLiteral("odmiennik-frame-%1-%2-%3")
                          .arg(option.palette.cacheKey())
                          .arg(option.state.toInt())
                          .arg(pixelRatio);
  QPixmap frame;
  if (QPixmapCache::find(key, &frame)) return frame;
  frame = paintedFrame(option, pixelRatio);
  QPixmapCache::insert(key, frame);
  return frame;
}

QPixmap ProgramStyle::paintedFrame(const QStyleOption& option, qreal pixelRatio) const {
  QPixmap frame(QSize(kSide, kSide) * pixelRatio);
  frame.setDevicePixelRatio(pixelRatio);
  frame.fill(Qt::transparent);
  QPainter painter(&frame);
  QStyleOption small(option);
  small.rect = QRect(0, 0, kSide, kSide);
  QProxyStyle::drawPrimitive(PE_FrameLineEdit, &small, &painter, nullptr);
  if (needsEdge(option)) {
    painter.setPen(separatorColour(option.palette));
    painter.drawRect(small.rect.adjusted(0, 0, -1, -1));
  }
  painter.end();
  frame.setDevicePixelRatio(1);  // its corners are cut out in the pixels of the screen
  return frame;
}

}  // namespace odmiennik::app
