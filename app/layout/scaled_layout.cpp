// SPDX-License-Identifier: GPL-3.0-or-later
// From the layout's twips to widgets.
#include "app/layout/scaled_layout.h"

#include <QFontMetrics>
#include <algorithm>

#include "app/controls/caption_label.h"
#include "app/controls/form_box.h"
#include "app/controls/form_columns.h"
#include "app/controls/form_surface.h"
#include "app/controls/placement.h"

namespace odmiennik::app {
namespace {

LayoutControl controlOf(const ControlRow& row) {
  const auto twips = [](int value) { return static_cast<float>(value); };
  LayoutControl control{.name = row.name,
                        .tag = row.tag,
                        .left = twips(row.left),
                        .top = twips(row.top),
                        .width = twips(row.width),
                        .height = twips(row.height),
                        .fontSize = twips(row.fontHundredths) / 100};
  if (row.kind != ControlKind::line) return control;
  control.x1 = control.left;
  control.y1 = control.top;
  control.x2 = control.left + control.width;
  control.y2 = control.top + control.height;
  return control;
}

TwipRect rectOf(const LayoutControl& control, ControlKind kind) {
  if (kind == ControlKind::line)
    return {control.x1, control.y1, control.x2 - control.x1, control.y2 - control.y1};
  return {control.left, control.top, control.width, control.height};
}

bool isPainted(ControlKind kind) {
  return kind == ControlKind::panel || kind == ControlKind::shape || kind == ControlKind::line;
}

// The size below which a widget would cut its text. Every rescale rounds boxes down, and what a
// thousand of them take away must not be seen: a box keeps the height of its letters, and a control
// without an edge of its own, or one that holds others, its designed proportion.
QSize leastSize(const QWidget& widget, const ControlRow& row, QSizeF factors) {
  constexpr int kEdges = 2;
  if (row.kind == ControlKind::textBox || row.kind == ControlKind::button)
    return {0, widget.fontMetrics().height() + kEdges};
  return {static_cast<int>(row.width * factors.width() / kTwipsPerPixel),
          static_cast<int>(row.height * factors.height() / kTwipsPerPixel)};
}

QSizeF factorsOf(const TwipSize& window) {
  return {static_cast<double>(window.width) / kMainWindow[0].width,
          static_cast<double>(window.height) / kMainWindow[0].height};
}

void stand(QWidget& widget, const ControlRow& row, const QRect& place, const QFont& font) {
  if (row.kind == ControlKind::label) return static_cast<CaptionLabel&>(widget).stand(place, font);
  widget.setGeometry(place);
}

void setFont(QWidget& widget, const ControlRow& row, const QFont& font) {
  if (row.kind == ControlKind::textBox)
    static_cast<FormBox&>(widget).setFormFont(font);
  else if (row.kind != ControlKind::label && widget.font() != font)
    widget.setFont(font);
}

}  // namespace

Layout designedLayout() {
  const ControlRow& window = kMainWindow[0];
  Layout layout{.design = {window.width, window.height},
                .windowFontSize = static_cast<float>(window.fontHundredths) / 100};
  for (const ControlRow& row : mainWindowRows().subspan(1))
    layout.controls.push_back(controlOf(row));
  return layout;
}

ScaledLayout::ScaledLayout(const Controls& controls, FormSurface& surface, FormColumns& columns)
    : controls_(controls), surface_(surface), columns_(columns), dragged_(designedLayout()) {}

void ScaledLayout::apply() {
  const FormColumns::Pause pause(columns_);
  surface_.setUpdatesEnabled(false);
  const QSizeF factors = factorsOf(layout().design);
  surface_.setFont(fontOf(kMainWindow[0], layout().windowFontSize, narrowness(factors)));
  for (std::size_t i = 0; i < layout().controls.size(); ++i) apply(layout().controls[i], i + 1);
  surface_.setUpdatesEnabled(true);
}

void ScaledLayout::apply(const LayoutControl& control, std::size_t position) {
  const ControlRow& row = kMainWindow[position];
  const TwipRect rect = rectOf(control, row.kind);
  if (isPainted(row.kind)) return surface_.setPlace(position, exactPlace(rect));
  const QSizeF factors = factorsOf(layout().design);
  QWidget& widget = *controls_.widgetAt(position);
  const QFont font = fontOf(row, control.fontSize, narrowness(factors));
  setFont(widget, row, font);
  QRect place = app::place(rect);
  place.setSize(place.size().expandedTo(leastSize(widget, row, factors)));
  stand(widget, row, place, font);
  if (row.kind == ControlKind::textBox && row.index < engine::kPersonalSlotCount)
    surface_.pronouns().setBox(row.index, place);
}

}  // namespace odmiennik::app
