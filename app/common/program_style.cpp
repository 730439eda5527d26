// SPDX-License-Identifier: GPL-3.0-or-later
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
#include <optional>

#include "app/common/colours.h"
#include "app/common/late_icon.h"
#include "app/common/message_icons.h"

namespace odmiennik::app {
namespace {

// What is kept of a frame: its corners; what lies between them is drawn out.
constexpr int kCorner = 4;
constexpr int kSide = 3 * kCorner;

bool isPlain(const QStyleOption& option) {
  return option.rect.width() > kSide && option.rect.height() > kSide;
}

// In the place of the style's own, which is lost on black ground. The box that has the focus is
// lit, unless the theme's highlight is as dark as its ground.
std::optional<QColor> edgeOf(const QStyleOption& option) {
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    const QColor highlight = option.palette.color(QPalette::Highlight);
    const QColor lit = visibleColour(highlight, option.palette);
    return lit == highlight ? std::nullopt : std::optional(lit);
  }
  return option.state.testFlag(QStyle::State_ReadOnly) ? separatorColour(option.palette)
                                                       : edgeColour(option.palette);
}

// As the style draws edges: on the middle of the dots.
void drawEdge(QPainter& painter, const QRect& place, const QColor& colour) {
  constexpr qreal kRadius = 2;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(colour);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

bool isFrame(QStyle::PrimitiveElement element) {
  return element == QStyle::PE_PanelLineEdit || element == QStyle::PE_FrameLineEdit ||
         element == QStyle::PE_PanelButtonCommand || element == QStyle::PE_FrameGroupBox ||
         element == QStyle::PE_FrameFocusRect;
}

// The style begins the frame of a group this far below the top of the group.
int titleHeight(const QStyleOption& option) {
  constexpr int kSquare = 13, kBelowTitle = 3;
  return std::max(kSquare, option.fontMetrics.height()) + kBelowTitle;
}

void drawOnPaper(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter) {
  if (element == QStyle::PE_FrameFocusRect) return;
  painter.save();
  const int title = element == QStyle::PE_FrameGroupBox ? titleHeight(option) : 0;
  drawEdge(painter, option.rect.adjusted(0, title, 0, 0), edgeColour(option.palette));
  painter.restore();
}

QMargins corners(int size) { return {size, size, size, size}; }

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  if (isForPaper_ && isFrame(element)) return drawOnPaper(element, *option, *painter);
  if (const auto* box = qstyleoption_cast<const QStyleOptionFrame*>(option);
      element == PE_PanelLineEdit && box != nullptr)
    return drawBox(*box, *painter, widget);
  if (const auto* box = qstyleoption_cast<const QStyleOptionButton*>(option);
      element == PE_IndicatorCheckBox && box != nullptr)
    return drawTickBox(*box, *painter, widget);
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

void ProgramStyle::drawBox(const QStyleOptionFrame& option, QPainter& painter,
                           const QWidget* widget) const {
  const int edge = option.lineWidth;
  const bool isLocked = option.state.testFlag(State_ReadOnly);
  painter.fillRect(option.rect.adjusted(edge, edge, -edge, -edge),
                   isLocked ? lockedColour(option.palette) : option.palette.brush(QPalette::Base));
  if (edge > 0) drawPrimitive(PE_FrameLineEdit, &option, &painter, widget);
}

// The square can be seen before it is ticked, and the tick though it cannot be changed.
void ProgramStyle::drawTickBox(const QStyleOptionButton& option, QPainter& painter,
                               const QWidget* widget) const {
  QStyleOptionButton readable(option);
  readable.palette = withReadableDisabled(option.palette);
  QProxyStyle::drawPrimitive(PE_IndicatorCheckBox, &readable, &painter, widget);
  painter.save();
  painter.setPen(edgeColour(option.palette));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  painter.restore();
}

// The style draws the texts of a menu itself.
void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element != CE_MenuItem || item == nullptr || item->state.testFlag(State_Enabled))
    return QProxyStyle::drawControl(element, option, painter, widget);
  QStyleOptionMenuItem readable(*item);
  readable.palette = withReadableDisabled(item->palette);
  QProxyStyle::drawControl(element, &readable, painter, widget);
}

void ProgramStyle::drawItemText(QPainter* painter, const QRect& place, int flags,
                                const QPalette& palette, bool isEnabled, const QString& text,
                                QPalette::ColorRole textRole) const {
  QProxyStyle::drawItemText(painter, place, flags,
                            isEnabled ? palette : withReadableDisabled(palette), isEnabled, text,
                            textRole);
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const {
  if (hint == kIsForPaper) return isForPaper_ ? 1 : 0;
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const {
  const QIcon own =
      messageIcon(picture, widget != nullptr ? widget->palette() : QGuiApplication::palette());
  if (!own.isNull()) return own;
  // Every menu bar makes it, for a window that is narrower than the menus.
  if (picture == SP_ToolBarHorizontalExtensionButton)
    return lateIcon([this] {
      return QProxyStyle::standardIcon(SP_ToolBarHorizontalExtensionButton, nullptr, nullptr);
    });
  return QProxyStyle::standardIcon(picture, option, widget);
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
  if (const auto edge = edgeOf(option)) drawEdge(painter, small.rect, *edge);
  painter.end();
  frame.setDevicePixelRatio(1);  // its corners are cut out in the pixels of the screen
  return frame;
}

}  // namespace odmiennik::app
