// Bubbles.
#include "app/common/bubble.h"

#include <QTextDocument>
#include <QToolTip>

namespace odmiennik::app {
namespace {

// A tooltip stands this far from the place that it is given: the pointer's picture is not in its
// way.
constexpr QPoint kTipOffset(2, 16);
constexpr int kGap = 4;

}  // namespace

QString asTip(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

void showBubble(QWidget& widget, const QString& text) {
  const QPoint below(0, widget.height() + kGap);
  QToolTip::showText(widget.mapToGlobal(below) - kTipOffset, asTip(text), &widget);
  widget.setAccessibleDescription(text);
}

void hideBubble(QWidget& widget) {
  const QString text = widget.accessibleDescription();
  if (text.isEmpty()) return;
  if (QToolTip::text() == asTip(text)) QToolTip::hideText();
  widget.setAccessibleDescription({});
}

}  // namespace odmiennik::app
