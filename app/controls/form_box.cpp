// SPDX-License-Identifier: GPL-3.0-or-later
// A box of one form.
#include "app/controls/form_box.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <algorithm>

#include "app/common/program_style.h"
#include "app/common/text.h"
#include "app/controls/departure_mark.h"

namespace odmiennik::app {

namespace {

constexpr int kNatural = 100;

// QLineEdit keeps two pixels at each end of its text; in larger letters that is too little.
constexpr int kMarginOfQLineEdit = 2;
constexpr double kMarginOfLetters = 2.0 / 11;

void composeAccents(QString& text, int& caret) {
  if (!std::ranges::any_of(text, [](QChar letter) { return letter.isMark(); })) return;
  const auto composed = [](const QString& part) {
    return part.normalized(QString::NormalizationForm_C);
  };
  caret = static_cast<int>(composed(text.left(caret)).size());
  text = composed(text);
}

int stretchOf(const QFont& font) {
  return font.stretch() == QFont::AnyStretch ? kNatural : font.stretch();
}

QFont condensed(QFont font, int percent) {
  font.setStretch(stretchOf(font) * percent / kNatural);
  return font;
}

// Letters stay readable down to the width that those of eight pixels of the screen have, and never
// become thinner than 0.6 of their own.
int leastWidth(const QFont& font, double pixelRatio) {
  constexpr double kReadablePixels = 8;
  const double readable = kNatural * kReadablePixels / (font.pixelSize() * pixelRatio);
  const int leastStretch = std::max(60, static_cast<int>(readable));
  return std::min(kNatural, (kNatural * leastStretch + stretchOf(font) - 1) / stretchOf(font));
}

}  // namespace

QValidator::State FrenchLetters::validate(QString& input, int& caret) const {
  composeAccents(input, caret);
  QString others;
  for (int position = static_cast<int>(input.size()) - 1; position >= 0; --position) {
    const QChar letter = input.at(position);
    if (isFrenchLetter(letter) && letter >= QLatin1Char(' ')) continue;
    if (letter.isPrint() || letter.isSurrogate()) others.prepend(letter);
    input.remove(position, 1);
    if (position < caret) --caret;
  }
  if (!others.isEmpty()) emit refused(others);
  return Acceptable;
}

FormBox::FormBox(QWidget* parent) : QLineEdit(parent), formFont_(font()) {
  connect(this, &QLineEdit::textChanged, this, &FormBox::keepText);
  connect(this, &QLineEdit::textChanged, this, &FormBox::fitChanged);
}

void FormBox::setFormFont(const QFont& font) {
  formFont_ = font;
  const int margin = std::max(0, qRound(font.pixelSize() * kMarginOfLetters) - kMarginOfQLineEdit);
  setTextMargins(margin, 0, margin, 0);
  setLetterWidth(kNatural);
  emit fitChanged();
}

void FormBox::showForm(const QString& form) {
  if (text() == form) return;
  const QScopedValueRollback<bool> showing(isShowing_, true);
  setText(form);
  setCursorPosition(0);
}

void FormBox::keepText(const QString& text) {
  if (isReadOnly() && !isShowing_)
    showForm(kept_);
  else
    kept_ = text;
}

int FormBox::room() const {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QMargins margins = textMargins();
  return style()->subElementRect(QStyle::SE_LineEditContents, &option, this).width() -
         margins.left() - margins.right() - 2 * kMarginOfQLineEdit;
}

bool FormBox::isClipped() const { return fontMetrics().horizontalAdvance(text()) > room(); }

// Letters of whole pixels can be wider together than their width in percent says.
int FormBox::neededWidth() const {
  if (!isReadOnly() || text().isEmpty()) return kNatural;
  const int natural = QFontMetrics(formFont_).horizontalAdvance(text());
  const int available = room();
  if (natural <= available) return kNatural;
  const int least = leastWidth(formFont_, devicePixelRatioF());
  int percent = std::max(least, kNatural * available / natural);
  const auto isTooWide = [&] {
    return QFontMetrics(condensed(formFont_, percent)).horizontalAdvance(text()) > available;
  };
  while (percent > least && isTooWide()) --percent;
  return percent;
}

void FormBox::setLetterWidth(int percent) {
  const QFont fitted = percent < kNatural ? condensed(formFont_, percent) : formFont_;
  if (fitted != font()) setFont(fitted);
}

void FormBox::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  emit fitChanged();
}

void FormBox::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() != QEvent::ReadOnlyChange) return;
  emit fitChanged();
  emit lockChanged();
}

// The menu bar takes the focus for as long as it is worked with; the box counts as the place where
// the user is.
void FormBox::focusOutEvent(QFocusEvent* event) {
  emit left();
  if (event->reason() != Qt::MenuBarFocusReason) return QLineEdit::focusOutEvent(event);
  QFocusEvent forMenu(QEvent::FocusOut, Qt::PopupFocusReason);
  QLineEdit::focusOutEvent(&forMenu);
}

void FormBox::inputMethodEvent(QInputMethodEvent* event) {
  const QString text = event->commitString();
  QLineEdit::inputMethodEvent(event);
  if (!text.isEmpty()) emit committed(text);
}

void FormBox::paintEvent(QPaintEvent* event) {
  if (style()->styleHint(ProgramStyle::kIsForPaper, nullptr, this) != 0) return paintForPaper();
  QLineEdit::paintEvent(event);
  if (isMarked_) paintMark();
}

void FormBox::markDeparture(const QString& norm) {
  if (accessibleDescription() != norm) setAccessibleDescription(norm);
  if (isMarked_ == !norm.isEmpty()) return;
  isMarked_ = !norm.isEmpty();
  update();
}

// Above the line of the letters; in a box that its form fills it touches the last one.
void FormBox::paintMark() {
  QPainter painter(this);
  paintDepartureMark(painter, QPointF(width() - 1, 1), departureMarkSize(height()), palette());
}

// The form alone: on paper there is neither a selection nor a caret.
void FormBox::paintForPaper() {
  QStylePainter painter(this);
  QStyleOptionFrame option;
  initStyleOption(&option);
  painter.drawPrimitive(QStyle::PE_PanelLineEdit, option);
  QRect place = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  place = place.marginsRemoved(textMargins());
  painter.setClipRect(place);
  painter.drawText(place.adjusted(kMarginOfQLineEdit, 0, -kMarginOfQLineEdit, 0),
                   Qt::AlignVCenter | Qt::TextSingleLine, text());
}

}  // namespace odmiennik::app
