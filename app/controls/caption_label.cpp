// SPDX-License-Identifier: GPL-3.0-or-later
// Fitting of a label's letters.
#include "app/controls/caption_label.h"

#include <QFontMetricsF>
#include <QStyle>
#include <algorithm>

#include "app/common/program_style.h"
#include "app/controls/departure_mark.h"

namespace odmiennik::app {

CaptionLabel::CaptionLabel(const QString& text, const QRect& place, const QFont& font,
                           QWidget* parent)
    : QLabel(parent), natural_(font) {
  setTextFormat(Qt::PlainText);
  setText(text);
  setGeometry(place);
  setFont(font);
}

void CaptionLabel::showText(const QString& text) {
  if (text == this->text()) return;
  setText(text);
  fit();
}

void CaptionLabel::stand(const QRect& place, const QFont& font) {
  setGeometry(place);
  natural_ = font;
  fit();
}

void CaptionLabel::markDeparture(const QString& norm) {
  if (accessibleDescription() != norm) setAccessibleDescription(norm);
  if (isMarked_ == !norm.isEmpty()) return;
  isMarked_ = !norm.isEmpty();
  update();
}

double CaptionLabel::textWidth() const { return QFontMetricsF(font()).horizontalAdvance(text()); }

void CaptionLabel::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  const bool isOnPaper = style()->styleHint(ProgramStyle::kIsForPaper, nullptr, this) != 0;
  if (!isMarked_ || isOnPaper) return;
  constexpr double kGap = 2;
  const double size = departureMarkSize(height());
  const double right = std::min<double>(width(), textWidth() + kGap + size);
  QPainter painter(this);
  paintDepartureMark(painter, QPointF(right, 1), size, palette());
}

// Step by step, and no further than can be read. The letters are measured, not the label: it would
// lay out its whole text for each step.
void CaptionLabel::fit() {
  constexpr int kStep = 3, kLeast = 50;
  QFont fitted = natural_;
  fitted.setUnderline(font().underline());
  int stretch = fitted.stretch() == QFont::AnyStretch ? 100 : fitted.stretch();
  const auto isTooWide = [&] { return QFontMetricsF(fitted).horizontalAdvance(text()) > width(); };
  while (stretch > kLeast && isTooWide()) fitted.setStretch(stretch -= kStep);
  if (fitted != font()) setFont(fitted);
}

}  // namespace odmiennik::app
