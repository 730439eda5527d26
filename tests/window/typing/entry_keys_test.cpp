// SPDX-License-Identifier: GPL-3.0-or-later
// What keys do in the boxes besides typing: completion, and the hint of read-only boxes.
#include <QClipboard>

#include "app/common/text.h"
#include "app/typing/key_codes.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;
using Messages = std::vector<MessageId>;

}  // namespace

class EntryKeysSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<ProgramUnderTest>(); }
  void cleanup() { program_.reset(); }

  void typedLettersAreCompleted();
  void backspaceRemovesTheSelectionAndDoesNotCompleteAgain();
  void typingOnReplacesTheSelection();
  void enterAcceptsTheCompletion();
  void aTextWithoutAVerbStaysUntouched();
  void withTheCaretElsewhereNothingIsCompleted();
  void theDigitRowNeverCompletes();
  void aRefusedLetterCompletesNothing();
  void aRefusedLetterOfAnInputMethodCompletesNothing();
  void aLetterMadeOfTwoCompletes();
  void lettersWithoutAKeyComplete();
  void switchedOffNothingIsCompletedAndNoHintShown();
  void theSwitchIsKeptInTheStore();
  void aKeyInALockedBoxShowsTheHintEachTime();
  void keysInAnEditedBoxShowNothing();
  void tabCopyingAndShortcutsShowNoHint();
  void keysThatMoveTheCaretShowNoHint();
  void theKeyThatClosedTheHintShowsNoOther();
  void theHintsHelpButtonOpensContextTwo();
  void keysHaveTheirVirtualKeyCodes_data();
  void keysHaveTheirVirtualKeyCodes();

 private:
  std::unique_ptr<ProgramUnderTest> program_;
};

void EntryKeysSuite::typedLettersAreCompleted() {
  program_->entry().clear();
  QTest::keyClicks(&program_->entry(), "all");
  const QString verb = program_->entry().text();
  QCOMPARE(verb, app::fromFrench(dictionary::completion("all")));
  QCOMPARE(program_->entry().selectedText(), verb.mid(3));
  QCOMPARE(program_->entry().cursorPosition(), 3);
  QVERIFY(!program_->entry().isReadOnly());
}

void EntryKeysSuite::backspaceRemovesTheSelectionAndDoesNotCompleteAgain() {
  program_->entry().clear();
  QTest::keyClicks(&program_->entry(), "all");
  QTest::keyClick(&program_->entry(), Qt::Key_Backspace);
  QCOMPARE(program_->entry().text(), "all");
  QTest::keyClick(&program_->entry(), Qt::Key_Backspace);
  QCOMPARE(program_->entry().text(), "al");
}

void EntryKeysSuite::typingOnReplacesTheSelection() {
  program_->entry().clear();
  QTest::keyClicks(&program_->entry(), "fini");
  QVERIFY(program_->entry().hasSelectedText());
  QTest::keyClicks(&program_->entry(), "r");
  QCOMPARE(program_->entry().text(), "finir");
  QVERIFY(!program_->entry().hasSelectedText());
}

void EntryKeysSuite::enterAcceptsTheCompletion() {
  program_->entry().clear();
  QTest::keyClicks(&program_->entry(), "parl");
  const QString verb = program_->entry().text();
  QVERIFY(verb.size() > 4);
  QTest::keyClick(&program_->entry(), Qt::Key_Return);
  QTRY_VERIFY(!program_->form(99).isEmpty());
  QCOMPARE(program_->form(96), verb);
}

void EntryKeysSuite::aTextWithoutAVerbStaysUntouched() {
  program_->entry().clear();
  QTest::keyClicks(&program_->entry(), "xqz");
  QCOMPARE(program_->entry().text(), "xqz");
  QCOMPARE(program_->entry().cursorPosition(), 3);
  QVERIFY(!program_->entry().hasSelectedText());
}

void EntryKeysSuite::withTheCaretElsewhereNothingIsCompleted() {
  program_->entry().setText("ll");
  program_->entry().setCursorPosition(0);
  QTest::keyClicks(&program_->entry(), "a");
  QCOMPARE(program_->entry().text(), "all");
}

// The French layout has é on the key of the digit 2, the eleventh of the keyboard.
void EntryKeysSuite::theDigitRowNeverCompletes() {
  program_->entry().clear();
  const auto send = [this](QEvent::Type type, quint32 place) {
    QKeyEvent key(type, Qt::Key_Eacute, Qt::NoModifier, place, 0, 0, QString("é"));
    QCoreApplication::sendEvent(&program_->entry(), &key);
  };
  send(QEvent::KeyPress, 11);
  send(QEvent::KeyRelease, 11);
  QCOMPARE(program_->entry().text(), "é");
  program_->entry().clear();
  send(QEvent::KeyPress, 0);
  send(QEvent::KeyRelease, 0);
  QVERIFY(program_->entry().text().size() > 1);
}

// Polish layouts have ś on the key of the s and ć on that of the c, which complete otherwise.
void EntryKeysSuite::aRefusedLetterCompletesNothing() {
  program_->entry().clear();
  QTest::keyClicks(&program_->entry(), "i");
  QVERIFY(program_->entry().hasSelectedText());
  const auto click = [this](const QString& letter, int key, quint32 place) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier, place, 0, 0, letter);
      QCoreApplication::sendEvent(&program_->entry(), &event);
    }
  };
  click("ś", Qt::Key_S, 39);
  click("ć", Qt::Key_C, 54);
  QCOMPARE(program_->entry().text(), "i");
  click("m", Qt::Key_M, 58);
  QVERIFY(program_->entry().text().startsWith("im"));
  QVERIFY(program_->entry().hasSelectedText());
}

void EntryKeysSuite::aRefusedLetterOfAnInputMethodCompletesNothing() {
  program_->entry().setText("fin");
  QInputMethodEvent letter;
  letter.setCommitString("ś");
  QCoreApplication::sendEvent(&program_->entry(), &letter);
  QCOMPARE(program_->entry().text(), "fin");
}

void EntryKeysSuite::aLetterMadeOfTwoCompletes() {
  program_->entry().clear();
  QTest::keyClicks(&program_->entry(), "e");
  QInputMethodEvent accent;
  accent.setCommitString(QChar(0x301));
  QCoreApplication::sendEvent(&program_->entry(), &accent);
  QVERIFY(program_->entry().text().startsWith("é"));
  QCOMPARE(program_->entry().cursorPosition(), 1);
  QVERIFY(program_->entry().hasSelectedText());
}

void EntryKeysSuite::lettersWithoutAKeyComplete() {
  program_->entry().setText("fin");
  QInputMethodEvent letter;
  letter.setCommitString("i");
  QCoreApplication::sendEvent(&program_->entry(), &letter);
  QVERIFY(program_->entry().text().startsWith("fini") && program_->entry().hasSelectedText());
  program_->entry().setText("fini");
  QInputMethodEvent blank;
  blank.setCommitString(" ");
  QCoreApplication::sendEvent(&program_->entry(), &blank);
  QCOMPARE(program_->entry().text(), "fini ");
}

void EntryKeysSuite::switchedOffNothingIsCompletedAndNoHintShown() {
  program_->item("mnuCzasownikAutouzupełnianie").trigger();
  program_->entry().clear();
  QTest::keyClicks(&program_->entry(), "all");
  QCoreApplication::processEvents();
  QCOMPARE(program_->entry().text(), "all");
  QVERIFY(program_->messages.shown.empty());
}

void EntryKeysSuite::theSwitchIsKeptInTheStore() {
  QAction& item = program_->item("mnuCzasownikAutouzupełnianie");
  QVERIFY(item.isChecked() && program_->store.isCompletionOn());
  item.trigger();
  QVERIFY(!item.isChecked() && !program_->store.isCompletionOn());
  item.trigger();
  QVERIFY(item.isChecked() && program_->store.isCompletionOn());
}

void EntryKeysSuite::aKeyInALockedBoxShowsTheHintEachTime() {
  program_->box(0).setFocus();
  QTest::keyClick(&program_->box(0), Qt::Key_A);
  QTRY_COMPARE(program_->messages.shown, Messages{MessageId::typeInfinitive});
  QTest::keyClick(&program_->box(0), Qt::Key_B);
  QTRY_COMPARE(program_->messages.shown, Messages(2, MessageId::typeInfinitive));
}

void EntryKeysSuite::keysInAnEditedBoxShowNothing() {
  program_->conjugate("parler");
  program_->item("mnuEdycjaEdytujCzasownik").trigger();
  QTRY_VERIFY(!program_->box(0).isReadOnly());
  program_->box(0).setFocus();
  QTest::keyClicks(&program_->box(0), "abc");
  QCoreApplication::processEvents();
  QVERIFY(program_->messages.shown.empty());
}

void EntryKeysSuite::tabCopyingAndShortcutsShowNoHint() {
  program_->conjugate("parler");
  for (int boxes = 0; boxes < 101; ++boxes)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  program_->box(0).setFocus();
  program_->box(0).selectAll();
  QTest::keyClick(&program_->box(0), Qt::Key_C, Qt::ControlModifier);
  QTest::keyClick(&program_->box(0), Qt::Key_Shift);
  QTest::keyClick(&program_->box(0), Qt::Key_Delete);
  QTest::keyClick(&program_->box(0), Qt::Key_A, Qt::AltModifier);
  QCoreApplication::processEvents();
  QCOMPARE(QGuiApplication::clipboard()->text(), "parle");
  QVERIFY(program_->messages.shown.empty());
}

void EntryKeysSuite::keysThatMoveTheCaretShowNoHint() {
  program_->conjugate("parler");
  program_->box(0).setFocus();
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home,
                            Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown}) {
    QTest::keyClick(&program_->box(0), key);
    QTest::keyClick(&program_->box(0), key, Qt::KeypadModifier);
    QTest::keyClick(&program_->box(0), key, Qt::ShiftModifier);
  }
  QTest::keyClick(&program_->box(0), Qt::Key_Home);
  QTest::keyClick(&program_->box(0), Qt::Key_End, Qt::ShiftModifier);
  QCoreApplication::processEvents();
  QCOMPARE(program_->box(0).selectedText(), "parle");
  QVERIFY(program_->messages.shown.empty());
}

void EntryKeysSuite::theKeyThatClosedTheHintShowsNoOther() {
  program_->box(0).setFocus();
  QTest::keyRelease(&program_->box(0), Qt::Key_Return);
  QCoreApplication::processEvents();
  QVERIFY(program_->messages.shown.empty());
}

void EntryKeysSuite::theHintsHelpButtonOpensContextTwo() {
  const auto isHelpOpen = [this] {
    return program_->window.findChild<QWidget*>("frmPomoc") != nullptr;
  };
  program_->box(0).setFocus();
  QTest::keyClick(&program_->box(0), Qt::Key_A);
  QTRY_COMPARE(program_->messages.shown.size(), 1);
  QVERIFY(!isHelpOpen());
  program_->messages.answer = Button::help;
  QTest::keyClick(&program_->box(0), Qt::Key_A);
  QTRY_VERIFY(isHelpOpen());
  const auto& page = program_->widget<QTextBrowser>("txtStrona");
  QVERIFY(page.toPlainText().startsWith("Jak odmienić czasownik"));
}

void EntryKeysSuite::keysHaveTheirVirtualKeyCodes_data() {
  QTest::addColumn<int>("key");
  QTest::addColumn<bool>("isOnKeypad");
  QTest::addColumn<int>("code");
  QTest::newRow("A") << int(Qt::Key_A) << false << 65;
  QTest::newRow("Z") << int(Qt::Key_Z) << false << 90;
  QTest::newRow("9") << int(Qt::Key_9) << false << 57;
  QTest::newRow("keypad 9") << int(Qt::Key_9) << true << 105;
  QTest::newRow("keypad +") << int(Qt::Key_Plus) << true << 107;
  QTest::newRow("keypad left") << int(Qt::Key_Left) << true << 37;
  QTest::newRow("exclamation mark") << int(Qt::Key_Exclam) << false << 49;
  QTest::newRow("F12") << int(Qt::Key_F12) << false << 123;
  QTest::newRow("right Alt") << int(Qt::Key_AltGr) << false << 18;
  QTest::newRow("backspace") << int(Qt::Key_Backspace) << false << 8;
  QTest::newRow("delete") << int(Qt::Key_Delete) << false << 46;
  QTest::newRow("apostrophe") << int(Qt::Key_Apostrophe) << false << 222;
  QTest::newRow("dead key") << int(Qt::Key_Dead_Acute) << false << 0;
  QTest::newRow("letter of another layout") << int(Qt::Key_Eacute) << false << 0;
}

void EntryKeysSuite::keysHaveTheirVirtualKeyCodes() {
  QFETCH(int, key);
  QFETCH(bool, isOnKeypad);
  QTEST(app::virtualKeyOf(key, isOnKeypad), "code");
}

std::unique_ptr<QObject> entryKeysSuite() { return std::make_unique<EntryKeysSuite>(); }

}  // namespace odmiennik::window_test

#include "entry_keys_test.moc"
