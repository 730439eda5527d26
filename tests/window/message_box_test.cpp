// The message boxes that the user sees.
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "app/common/qt_message_boxes.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;

// What a message box looked like while it was open.
struct Seen {
  QString title, text, defaultButton;
  QStringList buttons;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  Button answer = Button::help;
};

Seen look(const QMessageBox& box) {
  Seen seen{.title = box.windowTitle(), .text = box.text(), .icon = box.icon()};
  for (const QAbstractButton* button : box.buttons()) seen.buttons += button->text();
  if (box.defaultButton() != nullptr) seen.defaultButton = box.defaultButton()->text();
  seen.buttons.sort();
  return seen;
}

// Shows a message, looks at it, does something to it and presses a key in it.
Seen showAndPress(
    MessageId id, std::string_view argument, Qt::Key key,
    const std::function<void(QMessageBox&)>& work = [](QMessageBox&) {}) {
  Seen seen;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isActiveWindow()) return;
    poll.stop();
    seen = look(*box);
    work(*box);
    QTest::keyClick(box, key);
  });
  poll.start(1);
  app::QtMessageBoxes messages;
  const Button answer = messages.show(id, argument);
  seen.answer = answer;
  return seen;
}

}  // namespace

class MessageBoxSuite : public QObject {
  Q_OBJECT

 private slots:
  void aNoticeHasTheProgramsTitleAndAnOkButton();
  void aQuestionIsAskedWithPolishButtons();
  void escapeAnswersNoWhereThatIsTheDefault();
  void escapeThrowsNothingAway();
  void enterAnswersWithTheDefaultButton();
  void cancelSpeaksPolish();
  void aVerbIsNoMarkUp();
};

void MessageBoxSuite::aNoticeHasTheProgramsTitleAndAnOkButton() {
  const Seen seen = showAndPress(MessageId::conjugatedRegularly, {}, Qt::Key_Escape);
  QCOMPARE(seen.title, "Odmiennik");
  QCOMPARE(seen.text, "Podany czasownik nie został znaleziony, ale został odmieniony regularnie.");
  QCOMPARE(seen.icon, QMessageBox::Information);
  QCOMPARE(seen.buttons, QStringList{"OK"});
  QCOMPARE(seen.answer, Button::ok);
}

void MessageBoxSuite::aQuestionIsAskedWithPolishButtons() {
  const Seen seen = showAndPress(MessageId::saveEditedVerb, "être", Qt::Key_Return);
  QCOMPARE(seen.text, "Zapisać edytowany czasownik - 'être'?");
  QCOMPARE(seen.icon, QMessageBox::Question);
  QCOMPARE(seen.buttons, (QStringList{"&Nie", "&Tak"}));
}

void MessageBoxSuite::escapeAnswersNoWhereThatIsTheDefault() {
  QCOMPARE(showAndPress(MessageId::endProgram, {}, Qt::Key_Escape).answer, Button::no);
}

void MessageBoxSuite::escapeThrowsNothingAway() {
  for (const MessageId id : {MessageId::saveEditedVerb, MessageId::resolutionTooLow}) {
    int answered = 0;
    const auto tryToEscape = [&answered](QMessageBox& box) {
      QTest::keyClick(&box, Qt::Key_Escape);  // presses the button that it answers with
      for (const QAbstractButton* button : box.buttons()) answered += button->isDown() ? 1 : 0;
      answered += box.close() ? 1 : 0;
    };
    QCOMPARE(showAndPress(id, "être", Qt::Key_Return, tryToEscape).answer, Button::yes);
    QCOMPARE(answered, 0);
  }
}

void MessageBoxSuite::enterAnswersWithTheDefaultButton() {
  const Seen seen = showAndPress(MessageId::saveEditedVerb, "être", Qt::Key_Return);
  QCOMPARE(seen.defaultButton, "&Tak");
  QCOMPARE(seen.answer, Button::yes);
}

void MessageBoxSuite::cancelSpeaksPolish() {
  const Seen seen = showAndPress(MessageId::settingsWillBeReset, {}, Qt::Key_Escape);
  QCOMPARE(seen.buttons, (QStringList{"Anuluj", "OK"}));
  QCOMPARE(seen.answer, Button::cancel);
}

void MessageBoxSuite::aVerbIsNoMarkUp() {
  const Seen seen = showAndPress(MessageId::saveEditedVerb, "<b>a</b>", Qt::Key_Return);
  QCOMPARE(seen.text, "Zapisać edytowany czasownik - '<b>a</b>'?");
}

std::unique_ptr<QObject> messageBoxSuite() { return std::make_unique<MessageBoxSuite>(); }

}  // namespace odmiennik::window_test

#include "message_box_test.moc"
