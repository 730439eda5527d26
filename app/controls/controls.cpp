// SPDX-License-Identifier: GPL-3.0-or-later
// Building of the main window's widgets.
#include "app/controls/controls.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <algorithm>

#include "app/common/text.h"
#include "app/controls/caption_label.h"
#include "app/controls/form_box.h"
#include "app/controls/placement.h"

namespace odmiennik::app {
namespace {

QString objectName(const ControlRow& row) {
  const QString name = fromUtf8(row.name);
  return row.index < 0 ? name : name + QLatin1Char('_') + QString::number(row.index);
}

QWidget* createLabel(const ControlRow& row, QWidget& surface) {
  return new CaptionLabel(fromUtf8(row.caption), place(row), fontOf(row), &surface);
}

QWidget* createBox(const ControlRow& row, QWidget& surface, const QValidator& letters) {
  auto* box = new FormBox(&surface);
  box->setReadOnly(row.state == ControlState::locked);
  box->setValidator(&letters);
  return box;
}

QWidget* createButton(const ControlRow& row, QWidget& surface) {
  auto* button = new QPushButton(fromUtf8(row.caption), &surface);
  button->setAutoDefault(true);  // the Enter key presses the button that has the focus
  return button;
}

QWidget* create(const ControlRow& row, QWidget& surface, const QValidator& letters) {
  switch (row.kind) {
    case ControlKind::label:
      return createLabel(row, surface);
    case ControlKind::textBox:
      return createBox(row, surface, letters);
    case ControlKind::button:
      return createButton(row, surface);
    case ControlKind::checkBox:
      return new QCheckBox(fromUtf8(row.caption), &surface);
    case ControlKind::frame:
      return new QGroupBox(fromUtf8(row.caption), &surface);
    default:
      return nullptr;
  }
}

bool hasFontOfTheWindow(const ControlRow& row) {
  return row.fontHundredths == kMainWindow[0].fontHundredths && !row.isBold;
}

void furnish(QWidget& widget, const ControlRow& row) {
  widget.setObjectName(objectName(row));
  widget.setGeometry(place(row));
  if (row.kind == ControlKind::textBox)
    static_cast<FormBox&>(widget).setFormFont(fontOf(row));
  else if (row.kind != ControlKind::label && !hasFontOfTheWindow(row))
    widget.setFont(fontOf(row));
  if (!row.accessibleName.empty()) widget.setAccessibleName(fromUtf8(row.accessibleName));
  if (row.state == ControlState::disabled) widget.setEnabled(false);
  if (row.state == ControlState::hidden) widget.hide();
}

}  // namespace

Controls::Controls(QWidget& surface) {
  surface.setFont(fontOf(kMainWindow[0]));
  const auto* letters = new FrenchLetters(&surface);
  widgets_.reserve(mainWindowRows().size());
  for (const ControlRow& row : mainWindowRows()) {
    widgets_.push_back(create(row, surface, *letters));
    if (widgets_.back() != nullptr) furnish(*widgets_.back(), row);
  }
}

const ControlRow* Controls::rowOf(const QWidget& widget) const {
  const auto found = std::ranges::find(widgets_, &widget);
  return found == widgets_.end() ? nullptr : &kMainWindow[found - widgets_.begin()];
}

}  // namespace odmiennik::app
