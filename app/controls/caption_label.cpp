// SPDX-License-Identifier: GPL-3.0-or-later
// Fitting of a label's letters.
#include "app/controls/caption_label.h"

#include <QFontMetricsF>

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
