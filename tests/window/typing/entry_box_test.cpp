// SPDX-License-Identifier: GPL-3.0-or-later
// What may be typed, and how boxes show long forms.
#include <QClipboard>
#include <QToolTip>

#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
class EntryBoxSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<ProgramUnderTest>(); }
  void cleanup() { program_.reset(); }

  void theWindowStartsWithInfinitifSelected();
  void typingReplacesTheFirstWord();
  void foreignLettersAreNotEntered();
  void foreignLettersArePastedAway();
  void frenchLettersAndTheTypographicApostropheAreEntered();
  void aLockedBoxTakesNoLetters();
  void aLongFormShowsItsBeginning();
  void aLineBreakIsNotPasted();
  void decomposedAccentsArePastedAsLetters();
  void aDecomposedPolishLetterIsNotEnteredInPart();
  void theBoxSaysWhyALetterHasNotCome();
  void theSentenceGoesWithTheNextLetter();

 private:
  std::unique_ptr<ProgramUnderTest> program_;
};

void EntryBoxSuite::theWindowStartsWithInfinitifSelected() {
  QCOMPARE(program_->entry().text(), "infinitif");
  QCOMPARE(program_->entry().selectedText(), "infinitif");
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
}

void EntryBoxSuite::typingReplacesTheFirstWord() {
  program_->type("xé");
  QCOMPARE(program_->entry().text(), "xé");
}

void EntryBoxSuite::foreignLettersAreNotEntered() {
  program_->type("pałrżlξer");
  QCOMPARE(program_->entry().text(), "parler");
  QCOMPARE(program_->entry().cursorPosition(), 6);
}

void EntryBoxSuite::foreignLettersArePastedAway() {
  program_->entry().setText("abc");
  program_->entry().setCursorPosition(1);
  QGuiApplication::clipboard()->setText("łéß");
  program_->entry().paste();
  QCOMPARE(program_->entry().text(), "aéßbc");
  QCOMPARE(program_->entry().cursorPosition(), 3);
}

void EntryBoxSuite::frenchLettersAndTheTypographicApostropheAreEntered() {
  program_->conjugate("s’asseoir");
  QCOMPARE(program_->form(96), "s'asseoir");
  program_->type("œÿâçéè");
  QCOMPARE(program_->entry().text(), "œÿâçéè");
}

void EntryBoxSuite::aLockedBoxTakesNoLetters() {
  program_->conjugate("parler");
  program_->box(0).setFocus();
  program_->box(0).selectAll();
  QTest::keyClicks(&program_->box(0), "x");
  QCOMPARE(program_->form(0), "parle");
}

void EntryBoxSuite::aLongFormShowsItsBeginning() {
  program_->conjugate("s'entr'apprendre");
  QVERIFY(program_->box(69).isClipped());
  QCOMPARE(program_->box(69).cursorPosition(), 0);
}

void EntryBoxSuite::aLineBreakIsNotPasted() {
  QGuiApplication::clipboard()->setText("aller\r\n");
  program_->entry().selectAll();
  program_->entry().paste();
  QCOMPARE(program_->entry().text(), "aller");
}

void EntryBoxSuite::decomposedAccentsArePastedAsLetters() {
  QGuiApplication::clipboard()->setText(QString("e\u0302tre re\u0301pe\u0301ter"));
  program_->entry().setText("()");
  program_->entry().setCursorPosition(1);
  program_->entry().paste();
  QCOMPARE(program_->entry().text(), "(être répéter)");
  QCOMPARE(program_->entry().cursorPosition(), 13);
}

void EntryBoxSuite::aDecomposedPolishLetterIsNotEnteredInPart() {
  QGuiApplication::clipboard()->setText(QString("is\u0301c\u0301"));
  program_->entry().selectAll();
  program_->entry().paste();
  QCOMPARE(program_->entry().text(), "i");
}

void EntryBoxSuite::theBoxSaysWhyALetterHasNotCome() {
  program_->entry().clear();
  program_->type("ś");
  QTRY_COMPARE(QToolTip::text(), "Litery „ś” francuski nie zna.");
  QCOMPARE(program_->entry().accessibleDescription(), QToolTip::text());
}

void EntryBoxSuite::theSentenceGoesWithTheNextLetter() {
  program_->entry().clear();
  program_->type("ś");
  QTRY_VERIFY(QToolTip::isVisible());
  program_->type("i");
  QTRY_VERIFY(!QToolTip::isVisible());
  QVERIFY(program_->entry().accessibleDescription().isEmpty());
}

std::unique_ptr<QObject> entryBoxSuite() { return std::make_unique<EntryBoxSuite>(); }

}  // namespace odmiennik::window_test

#include "entry_box_test.moc"
