// SPDX-License-Identifier: GPL-3.0-or-later
// The message boxes that the user sees.
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "app/common/colours.h"
#include "app/common/qt_message_boxes.h"
#include "tests/window/suites.h"
#include "tests/window/themes.h"

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
    MessageId id, Utf8View argument, Qt::Key key,
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

constexpr MessageId kMessageOfEachIcon[] = {MessageId::conjugatedRegularly,
                                            MessageId::saveEditedVerb, MessageId::printerNotReady,
                                            MessageId::userVerbsNotSaved};
constexpr QStyle::StandardPixmap kPictures[] = {
    QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxWarning,
    QStyle::SP_MessageBoxCritical};
constexpr QSize kIconSize(48, 48);
constexpr int kIconDots = 48 * 48;

// The icon of a message as it stands on the screen.
QImage iconOf(MessageId id) {
  QImage icon;
  showAndPress(id, "a", Qt::Key_Return, [&icon](QMessageBox& box) {
    icon = box.findChild<QLabel*>("qt_msgboxex_icon_label")->grab().toImage();
  });
  return icon;
}

int dots(const QImage& picture, const QColor& colour) {
  int found = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) found += picture.pixelColor(x, y) == colour ? 1 : 0;
  return found;
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
  void aHeldKeyAnswersNothing_data();
  void aHeldKeyAnswersNothing();
  void cancelSpeaksPolish();
  void aVerbIsNoMarkUp();
  void everyIconIsDrawnInTheColoursOfTheTheme_data();
  void everyIconIsDrawnInTheColoursOfTheTheme();
  void iconsAreDrawnAnewOnFinerScreens();
  void iconsDifferWithoutTheirColours();
};

void MessageBoxSuite::everyIconIsDrawnInTheColoursOfTheTheme_data() { addThemes(); }

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

void MessageBoxSuite::aHeldKeyAnswersNothing_data() {
  QTest::addColumn<Qt::Key>("key");
  QTest::addColumn<QString>("text");
  QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
  const Qt::KeyboardModifiers none = Qt::NoModifier, alt = Qt::AltModifier;
  QTest::newRow("Enter") << Qt::Key_Return << "\r" << none;
  QTest::newRow("Enter of the number pad") << Qt::Key_Enter << "\r" << none;
  QTest::newRow("the letter of a button") << Qt::Key_N << "n" << none;
  QTest::newRow("the key of a button") << Qt::Key_N << "n" << alt;
  QTest::newRow("Escape") << Qt::Key_Escape << "" << none;
}

// The key that opened the box is still down, and the keyboard repeats it.
void MessageBoxSuite::aHeldKeyAnswersNothing() {
  QFETCH(Qt::Key, key);
  QFETCH(QString, text);
  QFETCH(Qt::KeyboardModifiers, modifiers);
  bool isAnswered = false;
  const auto repeat = [&](QMessageBox& box) {
    QTest::simulateEvent(QApplication::focusWidget(), /*press=*/true, key, modifiers, text,
                         /*repeat=*/true);
    for (const QAbstractButton* button : box.buttons()) isAnswered |= button->isDown();
    isAnswered |= !box.isVisible();
  };
  const MessageId id = MessageId::endProgram;
  const Seen seen = showAndPress(id, {}, Qt::Key_T, repeat);
  QVERIFY(!isAnswered);
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

// Every dot is of the icon's colour or of the window's ground, or lies between them; and there is
// enough of both that the icon is seen.
void MessageBoxSuite::everyIconIsDrawnInTheColoursOfTheTheme() {
  QFETCH(QPalette, palette);
  const Theme theme(palette);
  const app::HeadingColours design = app::designColours(palette);
  const QColor ground = palette.color(QPalette::Window);
  for (const MessageId id : kMessageOfEachIcon) {
    const QImage icon = iconOf(id);
    for (const QPoint corner : {QPoint(0, 0), icon.rect().topRight()})
      QCOMPARE(icon.pixelColor(corner), ground);
    const int coloured = dots(icon, design.mood) + dots(icon, design.tense);
    QVERIFY2(coloured > kIconDots / 4, qPrintable(QString::number(coloured)));
    QVERIFY2(dots(icon, ground) > kIconDots / 20, qPrintable(QString::number(dots(icon, ground))));
  }
}

void MessageBoxSuite::iconsAreDrawnAnewOnFinerScreens() {
  for (const QStyle::StandardPixmap picture : kPictures) {
    const QIcon icon = QApplication::style()->standardIcon(picture);
    const QImage coarse = icon.pixmap(kIconSize, 1).toImage();
    const QImage fine = icon.pixmap(kIconSize, 2).toImage();
    QCOMPARE(fine.size(), kIconSize * 2);
    QVERIFY(fine != coarse.scaled(fine.size()));
  }
}

void MessageBoxSuite::iconsDifferWithoutTheirColours() {
  QList<QImage> outlines;
  for (const QStyle::StandardPixmap picture : kPictures) {
    const QImage icon = QApplication::style()->standardIcon(picture).pixmap(kIconSize, 1).toImage();
    QVERIFY(!icon.isNull());
    const QImage outline = icon.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither);
    QVERIFY(!outlines.contains(outline));
    outlines += outline;
  }
}

std::unique_ptr<QObject> messageBoxSuite() { return std::make_unique<MessageBoxSuite>(); }

}  // namespace odmiennik::window_test

#include "message_box_test.moc"
