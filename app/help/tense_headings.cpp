// SPDX-License-Identifier: GPL-3.0-or-later
// The tense headings as links.
#include "app/help/tense_headings.h"

#include <QMouseEvent>
#include <algorithm>

namespace odmiennik::app {

TenseHeadings::TenseHeadings(const Controls& controls, HelpOpener& help, QObject* parent)
    : QObject(parent), help_(help) {
  controls.forEach("lblCzas", [this](const ControlRow& row, QWidget& widget) {
    labels_.at(static_cast<std::size_t>(row.index)) = static_cast<QLabel*>(&widget);
    widget.setMouseTracking(true);
    widget.installEventFilter(this);
  });
}

bool TenseHeadings::eventFilter(QObject* watched, QEvent* event) {
  const auto found = std::find(labels_.begin(), labels_.end(), watched);
  if (found == labels_.end()) return false;
  const int heading = static_cast<int>(found - labels_.begin());
  if (event->type() == QEvent::MouseMove) pointAt(heading);
  if (event->type() == QEvent::MouseButtonRelease) {
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    const bool isInside = (*found)->rect().contains(mouse.position().toPoint());
    if (mouse.button() == Qt::LeftButton && isInside) click(heading);
  }
  return false;
}

void TenseHeadings::pointAt(int heading) {
  const TopicHover::Change change = hover_.moved(heading);
  if (change.off) underline(*change.off, false);
  if (change.on) underline(*change.on, true);
}

void TenseHeadings::click(int heading) {
  if (const auto page = hover_.clicked(heading)) help_.open(*page);
}

void TenseHeadings::underline(int heading, bool isUnderlined) const {
  QLabel& label = *labels_[static_cast<std::size_t>(heading)];
  if (label.font().underline() == isUnderlined) return;
  QFont font = label.font();
  font.setUnderline(isUnderlined);
  label.setFont(font);
}

}  // namespace odmiennik::app
