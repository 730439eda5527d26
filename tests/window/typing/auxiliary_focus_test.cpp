// SPDX-License-Identifier: GPL-3.0-or-later
// The auxiliary's check box between one verb and the next: where the focus is, and what Enter does.
#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class AuxiliaryFocusSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<EditedProgram>(); }
  void cleanup() { program_.reset(); }

  void afterAClickTheNextVerbIsTyped();
  void aClickFromALockedBoxLeadsToTheEntryBox();
  void aClickWhileEditingLeadsBackToTheBox();
  void aClickWhileEditingLeadsBackFromAButtonToo();
  void reachedWithTabItKeepsTheFocus();
  void tickedByAScreenReaderItLeavesTheFocusAlone();
  void enterOnTheCheckBoxConjugates();
  void enterOnTheCheckBoxEndsEditingWithItsQuestion();
  void enterOnTheButtonConjugates();

 private:
  void click() const { QTest::mouseClick(&program_->auxiliary(), Qt::LeftButton); }

  std::unique_ptr<EditedProgram> program_;
};

void AuxiliaryFocusSuite::afterAClickTheNextVerbIsTyped() {
  program_->conjugate("monter");
  click();
  QCOMPARE(program_->form(24), "suis monté(e)");
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
  QCOMPARE(program_->entry().selectedText(), "monter");
  program_->type("finir");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  QTRY_COMPARE(program_->form(0), "finis");
}

void AuxiliaryFocusSuite::aClickFromALockedBoxLeadsToTheEntryBox() {
  program_->conjugate("monter");
  program_->box(7).setFocus();
  click();
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
  QCOMPARE(program_->entry().selectedText(), "monter");
}

void AuxiliaryFocusSuite::aClickWhileEditingLeadsBackToTheBox() {
  program_->edit("monter");
  program_->box(7).setFocus();
  program_->box(7).setSelection(1, 3);
  click();
  QVERIFY(!program_->auxiliary().isChecked());
  QCOMPARE(QApplication::focusWidget(), &program_->box(7));
  QCOMPARE(program_->box(7).selectedText(), "ont");
}

void AuxiliaryFocusSuite::aClickWhileEditingLeadsBackFromAButtonToo() {
  program_->edit("monter");
  program_->box(7).setFocus();
  program_->widget<QPushButton>("cmdOdmień").setFocus();
  click();
  QCOMPARE(QApplication::focusWidget(), &program_->box(7));
}

void AuxiliaryFocusSuite::reachedWithTabItKeepsTheFocus() {
  program_->conjugate("monter");
  program_->auxiliary().setFocus(Qt::TabFocusReason);
  QTest::keyClick(&program_->auxiliary(), Qt::Key_Space);
  QVERIFY(!program_->auxiliary().isChecked());
  QCOMPARE(QApplication::focusWidget(), &program_->auxiliary());
  click();
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
}

void AuxiliaryFocusSuite::tickedByAScreenReaderItLeavesTheFocusAlone() {
  program_->conjugate("monter");
  click();
  program_->box(7).setFocus();
  program_->auxiliary().click();
  QVERIFY(program_->auxiliary().isChecked());
  QCOMPARE(QApplication::focusWidget(), &program_->box(7));
}

void AuxiliaryFocusSuite::enterOnTheCheckBoxConjugates() {
  program_->conjugate("monter");
  program_->entry().setText("finir");
  program_->auxiliary().setFocus(Qt::TabFocusReason);
  QTest::keyClick(&program_->auxiliary(), Qt::Key_Enter, Qt::KeypadModifier);
  QTRY_COMPARE(program_->form(0), "finis");
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
}

void AuxiliaryFocusSuite::enterOnTheCheckBoxEndsEditingWithItsQuestion() {
  program_->edit("monter");
  program_->auxiliary().setFocus(Qt::TabFocusReason);
  QTest::keyClick(&program_->auxiliary(), Qt::Key_Space);
  program_->messages.answer = dictionary::Button::no;
  QTest::keyClick(&program_->auxiliary(), Qt::Key_Return);
  QTRY_VERIFY(!program_->isEditing());
  QCOMPARE(program_->messages.shown,
           std::vector<dictionary::MessageId>{dictionary::MessageId::saveEditedVerb});
}

void AuxiliaryFocusSuite::enterOnTheButtonConjugates() {
  program_->entry().setText("finir");
  auto& button = program_->widget<QPushButton>("cmdOdmień");
  button.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&button, Qt::Key_Return);
  QTRY_COMPARE(program_->form(0), "finis");
}

std::unique_ptr<QObject> auxiliaryFocusSuite() { return std::make_unique<AuxiliaryFocusSuite>(); }

}  // namespace odmiennik::window_test

#include "auxiliary_focus_test.moc"
