// Fitting of a label's letters.
#include "app/controls/caption_label.h"

namespace odmiennik::app {

CaptionLabel::CaptionLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void CaptionLabel::showText(const QString& text) {
  setText(text);
  fit();
}

void CaptionLabel::stand(const QRect& place, const QFont& font) {
  setGeometry(place);
  natural_ = font;
  fit();
}

// Step by step, and no further than can be read.
void CaptionLabel::fit() {
  constexpr int kStep = 3, kLeast = 50;
  QFont fitted = natural_;
  fitted.setUnderline(font().underline());
  int stretch = fitted.stretch() == QFont::AnyStretch ? 100 : fitted.stretch();
  if (fitted != font()) setFont(fitted);
  while (stretch > kLeast && sizeHint().width() > width()) {
    fitted.setStretch(stretch -= kStep);
    setFont(fitted);
  }
}

}  // namespace odmiennik::app
