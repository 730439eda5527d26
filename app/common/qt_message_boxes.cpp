// SPDX-License-Identifier: GPL-3.0-or-later
// Message boxes over QMessageBox.
#include "app/common/qt_message_boxes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "app/common/text.h"
#include "app/common/whole_window.h"

namespace odmiennik::app {
namespace {

using dictionary::Button;
using dictionary::Icon;

struct ButtonPair {
  Button button;
  QMessageBox::StandardButton standard;
};
// In the order in which they answer the Escape key.
constexpr ButtonPair kButtons[] = {{Button::cancel, QMessageBox::Cancel},
                                   {Button::no, QMessageBox::No},
                                   {Button::ok, QMessageBox::Ok},
                                   {Button::yes, QMessageBox::Yes},
                                   {Button::help, QMessageBox::Help}};

QMessageBox::Icon iconOf(Icon icon) {
  switch (icon) {
    case Icon::information:
      return QMessageBox::Information;
    case Icon::question:
      return QMessageBox::Question;
    case Icon::exclamation:
      return QMessageBox::Warning;
    case Icon::critical:
      return QMessageBox::Critical;
    case Icon::none:
      break;
  }
  return QMessageBox::NoIcon;
}

// Whether Escape may answer: not where the answer No would throw something away.
bool mayEscape(const dictionary::MessageRow& row) {
  return contains(row.buttons, Button::cancel) || !contains(row.buttons, Button::no) ||
         row.defaultButton == Button::no;
}

// Whether the keyboard repeats a key that is held down. ShortcutOverride comes before the key is
// looked for among those of the buttons.
bool isRepeatedKey(const QEvent& event) {
  const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride;
  return isKey && static_cast<const QKeyEvent&>(event).isAutoRepeat();
}

// A box that may have to be answered with one of its buttons. A key that was already held down when
// it opened answers nothing: whoever holds Enter has not read the question.
class AnsweredBox final : public QMessageBox {
 public:
  explicit AnsweredBox(const dictionary::MessageRow& row)
      : QMessageBox(QApplication::activeWindow()), mayEscape_(mayEscape(row)) {}

  // For the box and for its buttons, one of which has the focus.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (!isRepeatedKey(*event)) return QMessageBox::eventFilter(watched, event);
    event->accept();
    return true;
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (mayEscape_ || !event->matches(QKeySequence::Cancel)) QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override {
    if (mayEscape_) return QMessageBox::closeEvent(event);
    event->ignore();
  }
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ScreenChangeInternal) makeWholeLater(*this);
    return QMessageBox::event(event);
  }

 private:
  bool mayEscape_;
};

void addButtons(AnsweredBox& box, const dictionary::MessageRow& row) {
  for (const ButtonPair& pair : kButtons) {
    if (!contains(row.buttons, pair.button)) continue;
    QPushButton* button = box.addButton(pair.standard);
    button->installEventFilter(&box);
    if (pair.button == row.defaultButton) box.setDefaultButton(pair.standard);
    if (box.escapeButton() == nullptr) box.setEscapeButton(button);
  }
}

Button answerOf(int standard) {
  for (const ButtonPair& pair : kButtons)
    if (pair.standard == standard) return pair.button;
  return Button::cancel;
}

}  // namespace

Button QtMessageBoxes::show(dictionary::MessageId id, Utf8View argument) {
  const dictionary::MessageRow& row = dictionary::row(id);
  const Utf8View title = row.title.empty() ? dictionary::kApplicationTitle : row.title;
  // Not on the stack: the window that it stands over would delete it if it went.
  const QPointer<AnsweredBox> box = new AnsweredBox(row);
  box->setIcon(iconOf(row.icon));
  box->setWindowTitle(fromUtf8(title));
  box->setText(fromUtf8(dictionary::messageText(id, argument)));
  box->setTextFormat(Qt::PlainText);  // a verb typed by the user is no mark-up
  box->installEventFilter(box);
  addButtons(*box, row);
  const Button answer = answerOf(box->exec());
  delete box;
  return answer;
}

}  // namespace odmiennik::app
