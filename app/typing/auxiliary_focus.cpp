// SPDX-License-Identifier: GPL-3.0-or-later
// The focus after a click on the check box.
#include "app/typing/auxiliary_focus.h"

#include <QMouseEvent>
#include <utility>

namespace odmiennik::app {

AuxiliaryFocus::AuxiliaryFocus(QCheckBox& box, const FormBoxes& boxes, const CurrentBox& current)
    : box_(box), boxes_(boxes), current_(current) {
  box.setFocusPolicy(Qt::TabFocus);
  box.installEventFilter(this);
  connect(&box, &QCheckBox::clicked, this, [this] {
    if (std::exchange(isPointedAt_, false)) giveBack();
  });
}

// The box is clicked when the button goes up over it, right after this.
bool AuxiliaryFocus::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::MouseButtonRelease) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  isPointedAt_ =
      mouse.button() == Qt::LeftButton && box_.rect().contains(mouse.position().toPoint());
  return false;
}

// Outside of editing all boxes but the entry box are locked.
void AuxiliaryFocus::giveBack() const {
  const bool isEditing = !boxes_[engine::slot::kCompoundParticiple].isReadOnly();
  isEditing ? current_.focus() : boxes_.selectEntry();
}

}  // namespace odmiennik::app
