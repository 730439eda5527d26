// The ground of the main window.
#include "app/controls/form_surface.h"

#include <QPaintEvent>
#include <QPainter>

#include "app/controls/control_table.h"
#include "app/controls/placement.h"

namespace odmiennik::app {
namespace {

bool isDecoration(const ControlRow& row) {
  return row.kind == ControlKind::panel || row.kind == ControlKind::shape ||
         row.kind == ControlKind::line;
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
      painter.fillRect(place, moodColour_);
  }
}

}  // namespace odmiennik::app
