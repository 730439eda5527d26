// A box of one form.
#include "app/controls/form_box.h"

#include <QHelpEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>
#include <algorithm>

#include "app/common/text.h"

namespace odmiennik::app {

namespace {

int stretchOf(const QFont& font) {
  constexpr int kNatural = 100;
  return font.stretch() == QFont::AnyStretch ? kNatural : font.stretch();
}

// Letters stay readable down to the width that those of eight pixels have, and never become thinner
// than 0.6 of their own.
int leastStretch(const QFont& font) {
  return std::min(stretchOf(font), std::max(60, 100 * 8 / std::max(1, font.pixelSize())));
}

}  // namespace

QValidator::State FrenchLetters::validate(QString& input, int& caret) const {
  for (int position = static_cast<int>(input.size()) - 1; position >= 0; --position) {
    const QChar letter = input.at(position);
    if (isFrenchLetter(letter) && letter >= QLatin1Char(' ')) continue;
    input.remove(position, 1);
    if (position < caret) --caret;
  }
  return Acceptable;
}

FormBox::FormBox(QWidget* parent) : QLineEdit(parent), formFont_(font()) {
  connect(this, &QLineEdit::textChanged, this, &FormBox::keepText);
  connect(this, &QLineEdit::textChanged, this, &FormBox::fitLetters);
}

void FormBox::setFormFont(const QFont& font) {
  formFont_ = font;
  fitLetters();
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
  constexpr int kMarginsOfQLineEdit = 2 * 2;
  QStyleOptionFrame option;
  initStyleOption(&option);
  return style()->subElementRect(QStyle::SE_LineEditContents, &option, this).width() -
         kMarginsOfQLineEdit;
}

bool FormBox::isClipped() const { return fontMetrics().horizontalAdvance(text()) > room(); }

void FormBox::fitLetters() {
  const int needed = QFontMetrics(formFont_).horizontalAdvance(text());
  QFont fitted = formFont_;
  if (isReadOnly() && needed > room())
    fitted.setStretch(std::max(leastStretch(formFont_), stretchOf(formFont_) * room() / needed));
  if (fitted != font()) setFont(fitted);
}

void FormBox::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() != QEvent::ReadOnlyChange) return;
  fitLetters();
  emit lockChanged();
}

// The menu bar takes the focus for as long as it is worked with; the box counts as the place where
// the user is.
void FormBox::focusOutEvent(QFocusEvent* event) {
  if (event->reason() != Qt::MenuBarFocusReason) return QLineEdit::focusOutEvent(event);
  QFocusEvent forMenu(QEvent::FocusOut, Qt::PopupFocusReason);
  QLineEdit::focusOutEvent(&forMenu);
}

void FormBox::inputMethodEvent(QInputMethodEvent* event) {
  const QString text = event->commitString();
  QLineEdit::inputMethodEvent(event);
  if (!text.isEmpty()) emit committed(text);
}

bool FormBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLineEdit::event(event);
  if (isClipped() || font() != formFont_)
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  else
    QToolTip::hideText();
  return true;
}

}  // namespace odmiennik::app
