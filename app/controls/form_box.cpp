// A box of one form.
#include "app/controls/form_box.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>

#include "app/common/text.h"

namespace odmiennik::app {

QValidator::State FrenchLetters::validate(QString& input, int& caret) const {
  for (int position = static_cast<int>(input.size()) - 1; position >= 0; --position) {
    if (isFrenchLetter(input.at(position))) continue;
    input.remove(position, 1);
    if (position < caret) --caret;
  }
  return Acceptable;
}

void FormBox::showForm(const QString& form) {
  if (text() == form) return;
  setText(form);
  setCursorPosition(0);
}

bool FormBox::isClipped() const {
  constexpr int kMarginsOfQLineEdit = 2 * 2;
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect room = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
  return fontMetrics().horizontalAdvance(text()) > room.width() - kMarginsOfQLineEdit;
}

bool FormBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLineEdit::event(event);
  if (isClipped())
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  else
    QToolTip::hideText();
  return true;
}

}  // namespace odmiennik::app
