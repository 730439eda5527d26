// SPDX-License-Identifier: GPL-3.0-or-later
// The ground of the main window.
#include "app/controls/form_surface.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "app/controls/control_table.h"
#include "app/controls/placement.h"

namespace odmiennik::app {
namespace {

bool isDecoration(const ControlRow& row) {
  return row.kind == ControlKind::panel || row.kind == ControlKind::shape ||
         row.kind == ControlKind::line;
}

// A rule on whole pixels of the screen, one at least: one thinner than that, in a small window,
// would fall between them and not be seen.
QRectF visible(const QRectF& rule, qreal pixelRatio) {
  const auto onPixel = [pixelRatio](qreal value) {
    return std::round(value * pixelRatio) / pixelRatio;
  };
  const qreal height = std::max(onPixel(rule.height()), 1 / pixelRatio);
  return {onPixel(rule.x()), onPixel(rule.y()), onPixel(rule.width()), height};
}

}  // namespace

FormSurface::FormSurface(QWidget* parent) : QWidget(parent) {
  for (std::size_t row = 0; row < mainWindowRows().size(); ++row)
    if (isDecoration(kMainWindow[row])) decorations_.push_back({row, exactPlace(kMainWindow[row])});
}

void FormSurface::setMoodColour(const QColor& colour) {
  if (moodColour_ == colour) return;
  moodColour_ = colour;
  update();
}

void FormSurface::setPlace(std::size_t row, const QRectF& place) {
  for (Decoration& decoration : decorations_)
    if (decoration.row == row) decoration.place = place;
  update();
}

QSize FormSurface::sizeHint() const { return place(kMainWindow[0]).size(); }

void FormSurface::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  // The thinnest line still marks one pixel.
  constexpr QMarginsF kThinnest(0, 0, 1, 1);
  for (const Decoration& decoration : decorations_)
    if (QRectF(event->rect()).intersects(decoration.place + kThinnest)) paint(painter, decoration);
  painter.setPen(palette().color(QPalette::WindowText));
  pronouns_.paint(painter, event->rect());
}

void FormSurface::paint(QPainter& painter, const Decoration& decoration) const {
  const QRectF& place = decoration.place;
  switch (kMainWindow[decoration.row].kind) {
    case ControlKind::panel: {
      constexpr qreal kRadius = 4;
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setPen(Qt::NoPen);
      painter.setBrush(panelColour(palette()));
      painter.drawRoundedRect(place, kRadius, kRadius);
      painter.setRenderHint(QPainter::Antialiasing, false);
      break;
    }
    case ControlKind::line:
      painter.setPen(separatorColour(palette()));
      painter.drawLine(place.topLeft(), place.bottomRight());
      break;
    default:
      painter.fillRect(visible(place, painter.device()->devicePixelRatio()), moodColour_);
  }
}

}  // namespace odmiennik::app
