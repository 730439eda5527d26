// SPDX-License-Identifier: GPL-3.0-or-later
// French letters typed by clicking.
#include <QCheckBox>

#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class LettersSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<EditedProgram>(); }
  void cleanup() { program_.reset(); }

  void everyButtonTypesItsCaption();
  void aClickGoesToTheCaret();
  void aClickReplacesTheSelection();
  void checkBoxFiveTypesEAcuteAndButtonFiveECircumflex();
  void aCheckBoxTypesOnceAndEndsUnticked();
  void aLockedBoxStaysAndHasTheFocusAgain();
  void theKeyboardPressesALetterToo();
  void lettersGoIntoAnEditedForm();
  void aKeyLeadsFromABoxToTheLettersAndBack();

 private:
  [[nodiscard]] QPushButton& button(int index) const {
    return program_->widget<QPushButton>(QString("cmdFrancuskaLitera_%1").arg(index));
  }
  [[nodiscard]] QCheckBox& checkBox(int index) const {
    return program_->widget<QCheckBox>(QString("chkFrancuskaLitera_%1").arg(index));
  }
  void click(int index) const { QTest::mouseClick(&button(index), Qt::LeftButton); }

  std::unique_ptr<EditedProgram> program_;
};

void LettersSuite::everyButtonTypesItsCaption() {
  program_->entry().clear();
  for (int index = 0; index < 13; ++index) click(index);
  QCOMPARE(program_->entry().text(), "àâäçèêéëîïôùû");
}

void LettersSuite::aClickGoesToTheCaret() {
  program_->entry().setText("fler");
  program_->entry().setCursorPosition(1);
  click(12);
  QCOMPARE(program_->entry().text(), "fûler");
  QCOMPARE(program_->entry().cursorPosition(), 2);
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
}

void LettersSuite::aClickReplacesTheSelection() {
  program_->entry().setText("chanter");
  program_->entry().setSelection(2, 3);
  click(6);
  QCOMPARE(program_->entry().text(), "chéer");
  QCOMPARE(program_->entry().cursorPosition(), 3);
}

// deliberate: the two arrays hold é and ê in opposite order.
void LettersSuite::checkBoxFiveTypesEAcuteAndButtonFiveECircumflex() {
  program_->entry().clear();
  checkBox(5).click();
  click(5);
  QCOMPARE(program_->entry().text(), "éê");
}

void LettersSuite::aCheckBoxTypesOnceAndEndsUnticked() {
  program_->entry().clear();
  checkBox(0).click();
  QCOMPARE(program_->entry().text(), "à");
  QVERIFY(!checkBox(0).isChecked());
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
}

void LettersSuite::aLockedBoxStaysAndHasTheFocusAgain() {
  program_->conjugate("parler");
  program_->box(3).setFocus();
  QCOMPARE(program_->program.typing().current().index(), 3);
  button(2).setFocus();
  button(2).click();
  checkBox(2).click();
  QCOMPARE(program_->form(3), "parlons");
  QCOMPARE(program_->entry().text(), "parler");
  QCOMPARE(QApplication::focusWidget(), &program_->box(3));
}

// The way to the button takes the focus, and with it the selection, from the box.
void LettersSuite::theKeyboardPressesALetterToo() {
  program_->entry().setText("chanter");
  program_->entry().setSelection(2, 3);
  button(6).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&button(6), Qt::Key_Space);
  QCOMPARE(program_->entry().text(), "chéer");
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
  QVERIFY(!program_->entry().hasSelectedText());
}

void LettersSuite::lettersGoIntoAnEditedForm() {
  program_->conjugate("parler");
  program_->item("mnuEdycjaEdytujCzasownik").trigger();
  QTRY_VERIFY(!program_->box(3).isReadOnly());
  program_->box(3).setFocus();
  program_->box(3).setCursorPosition(0);
  click(3);
  QCOMPARE(program_->form(3), "çparlons");
}

// Tab alone would lead through all the boxes between, and the letter into the last of them.
void LettersSuite::aKeyLeadsFromABoxToTheLettersAndBack() {
  program_->edit("finir");
  app::FormBox& box = program_->box(18);
  box.setFocus();
  box.setSelection(3, 1);
  QTest::keyClick(&box, Qt::Key_F6);
  QCOMPARE(QApplication::focusWidget()->objectName(), "cmdFrancuskaLitera_0");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  QTRY_COMPARE(box.text(), "finârai");
  QCOMPARE(QApplication::focusWidget(), &box);
}

std::unique_ptr<QObject> lettersSuite() { return std::make_unique<LettersSuite>(); }

}  // namespace odmiennik::window_test

#include "letters_test.moc"
