// What may be typed, and how boxes show long forms.
#include <QClipboard>
#include <QHelpEvent>
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
  void aLongFormHasATooltipAndAShortOneHasNone();
  void aLineBreakIsNotPasted();

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

void EntryBoxSuite::aLongFormHasATooltipAndAShortOneHasNone() {
  program_->conjugate("se promener");
  const auto pointAt = [this](int slot) {
    app::FormBox& box = program_->box(slot);
    QHelpEvent event(QEvent::ToolTip, {5, 5}, box.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&box, &event);
  };
  pointAt(69);
  QTRY_COMPARE(QToolTip::text(), program_->form(69));
  pointAt(0);
  QTRY_VERIFY(!QToolTip::isVisible());
}

void EntryBoxSuite::aLineBreakIsNotPasted() {
  QGuiApplication::clipboard()->setText("aller\r\n");
  program_->entry().selectAll();
  program_->entry().paste();
  QCOMPARE(program_->entry().text(), "aller");
}

std::unique_ptr<QObject> entryBoxSuite() { return std::make_unique<EntryBoxSuite>(); }

}  // namespace odmiennik::window_test

#include "entry_box_test.moc"
