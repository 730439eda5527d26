// SPDX-License-Identifier: GPL-3.0-or-later
// Bubbles.
#include "app/common/bubble.h"

#include <QTextDocument>
#include <QToolTip>
#include <QVariant>

namespace odmiennik::app {
namespace {

// A tooltip stands this far from the place that it is given: the pointer's picture is not in its
// way.
constexpr QPoint kTipOffset(2, 16);
constexpr int kGap = 4;

// What the widget said of itself before it had a bubble.
constexpr const char* kBefore = "describedBefore";

}  // namespace

QString asTip(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

void showBubble(QWidget& widget, const QString& text) {
  const QPoint below(0, widget.height() + kGap);
  QToolTip::showText(widget.mapToGlobal(below) - kTipOffset, asTip(text), &widget);
  widget.setProperty(kBefore, widget.accessibleDescription());
  widget.setAccessibleDescription(text);
}

void hideBubble(QWidget& widget) {
  const QVariant before = widget.property(kBefore);
  if (!before.isValid()) return;
  if (QToolTip::text() == asTip(widget.accessibleDescription())) QToolTip::hideText();
  widget.setAccessibleDescription(before.toString());
  widget.setProperty(kBefore, {});
}

}  // namespace odmiennik::app
