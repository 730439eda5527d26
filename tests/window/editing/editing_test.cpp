// SPDX-License-Identifier: GPL-3.0-or-later
// Editing a verb in its boxes: entering and leaving edit mode.
#include <QWindow>

#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;
using Messages = std::vector<MessageId>;

}  // namespace

class EditingSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<EditedProgram>(); }
  void cleanup() { program_.reset(); }

  void theBoxesAreLockedUntilEditModeIsEntered();
  void enteringShowsMarkerCaptionsAndTheStartingPoint();
  void enteringCountsNoConjugation();
  void enteringKeepsTheAuxiliaryThatIsShown();
  void enteringWithAnotherVerbStartsWithAvoir();
  void anUnknownVerbIsEditedWithItsNotice();
  void aMissingFormIsAnEmptyBoxWhileEditing();
  void theCaptionFollowsTheInfinitive();
  void theCaptionShowsWhatQtKeepsForItself();
  void leavingRestoresMarkerAndCaptions();
  void editAgainLeavesEditMode();
  void conjugatingUnchangedFormsAsksNothing();
  void everyChangeOfABoxClearsTheSavedFlag();
  void anotherAuxiliaryIsAChangeToo();
  void newVerbAsksFirstAndKeepsTheInfinitive();
  void newVerbSavesOnYes();
  void newVerbClearsTheBoxesWithoutAMessage();
  void newVerbSaysNothingOfAMissingInfinitive();
  void f2EntersAndTabGoesThroughTheBoxes();
  void theListLeavesEditModeFirst();
  void aCommandBehindAQuestionDoesNothing();
  void resetujAnsweredCancelLeavesEditMode();
  void aLockedBoxIsRestoredWhenWrittenInto();
  void foreignLettersAreNotEnteredIntoAForm();

 private:
  std::unique_ptr<EditedProgram> program_;
};

void EditingSuite::theBoxesAreLockedUntilEditModeIsEntered() {
  program_->conjugate("parler");
  QVERIFY(program_->box(0).isReadOnly() && program_->box(100).isReadOnly());
  QVERIFY(!program_->item("mnuPlikZapiszCzasownik").isEnabled());
  program_->trigger("mnuEdycjaEdytujCzasownik");
  for (int slot = 0; slot < engine::kSlotCount; ++slot) QVERIFY(!program_->box(slot).isReadOnly());
  QVERIFY(program_->item("mnuPlikZapiszCzasownik").isEnabled());
}

void EditingSuite::enteringShowsMarkerCaptionsAndTheStartingPoint() {
  QCOMPARE(program_->item("mnuEdycjaEdytujCzasownik").property("Tag").toString(), "");
  QCOMPARE(program_->item("mnuEdycjaEdytujCzasownik").text(), "E&dytuj");
  program_->edit("venir");
  QCOMPARE(program_->item("mnuEdycjaEdytujCzasownik").text(), "&Koniec edycji");
  QCOMPARE(program_->window.windowTitle(), "Odmiennik - edycja \"venir\"");
  QCOMPARE(program_->form(0), "viens");
  QVERIFY(program_->auxiliary().isEnabled());
  QVERIFY(program_->messages.shown.empty());
}

void EditingSuite::enteringCountsNoConjugation() {
  program_->conjugate("parler");
  const int counted = program_->program.settings().conjugationCount();
  program_->trigger("mnuEdycjaEdytujCzasownik");
  QVERIFY(program_->isEditing());
  QCOMPARE(program_->program.settings().conjugationCount(), counted);
}

void EditingSuite::enteringKeepsTheAuxiliaryThatIsShown() {
  program_->conjugate("monter");
  program_->auxiliary().click();
  program_->trigger("mnuEdycjaEdytujCzasownik");
  QVERIFY(!program_->auxiliary().isChecked());
  QCOMPARE(program_->form(24), "suis monté(e)");
}

void EditingSuite::enteringWithAnotherVerbStartsWithAvoir() {
  program_->conjugate("aller");
  program_->entry().setText("parler");
  program_->trigger("mnuEdycjaEdytujCzasownik");
  QVERIFY(program_->auxiliary().isChecked());
  QCOMPARE(program_->form(24), "ai parlé");
}

void EditingSuite::anUnknownVerbIsEditedWithItsNotice() {
  program_->entry().setText("zyzer");
  program_->trigger("mnuEdycjaEdytujCzasownik");
  QCOMPARE(program_->messages.shown, Messages{MessageId::conjugatedRegularly});
  QVERIFY(program_->isEditing());
  QCOMPARE(program_->form(0), "zyze");
}

void EditingSuite::aMissingFormIsAnEmptyBoxWhileEditing() {
  program_->conjugate("falloir");
  QCOMPARE(program_->form(0), " -- ");
  program_->edit("falloir");
  QCOMPARE(program_->form(0), QString());
}

void EditingSuite::theCaptionFollowsTheInfinitive() {
  program_->edit("parler");
  program_->entry().setText("être");
  QCOMPARE(program_->window.windowTitle(), "Odmiennik - edycja \"être\"");
}

void EditingSuite::theCaptionShowsWhatQtKeepsForItself() {
  program_->edit("parler");
  program_->entry().setText("[*]par[*][*]ler");
  QCOMPARE(program_->window.windowHandle()->title().section('"', 1, 1), "[*]par[*][*]ler");
}

void EditingSuite::leavingRestoresMarkerAndCaptions() {
  program_->edit("parler");
  program_->trigger("mnuEdycjaOdmień");
  QVERIFY(!program_->isEditing());
  QCOMPARE(program_->item("mnuEdycjaEdytujCzasownik").text(), "&Edytuj czasownik");
  QCOMPARE(program_->window.windowTitle(), "Odmiennik");
  QVERIFY(!program_->item("mnuPlikZapiszCzasownik").isEnabled());
  QVERIFY(program_->box(0).isReadOnly() && !program_->entry().isReadOnly());
}

void EditingSuite::editAgainLeavesEditMode() {
  program_->edit("parler");
  program_->trigger("mnuEdycjaEdytujCzasownik");
  QVERIFY(!program_->isEditing());
  QCOMPARE(program_->form(0), "parle");
}

void EditingSuite::conjugatingUnchangedFormsAsksNothing() {
  program_->edit("parler");
  program_->trigger("mnuEdycjaOdmień");
  QVERIFY(program_->messages.shown.empty());
}

void EditingSuite::everyChangeOfABoxClearsTheSavedFlag() {
  program_->edit("parler");
  program_->box(0).showForm("par");  // not typed: the program changes it
  program_->messages.answer = Button::no;
  program_->trigger("mnuEdycjaOdmień");
  QCOMPARE(program_->messages.shown, Messages{MessageId::saveEditedVerb});
}

// It is saved with the forms.
void EditingSuite::anotherAuxiliaryIsAChangeToo() {
  program_->edit("parler");
  program_->auxiliary().click();
  program_->messages.answer = Button::yes;
  program_->trigger("mnuEdycjaOdmień");
  QCOMPARE(program_->messages.shown, Messages{MessageId::saveEditedVerb});
  QCOMPARE(program_->fields().value(101).trimmed(), "0");
}

void EditingSuite::newVerbSavesOnYes() {
  program_->edit("parler");
  program_->box(0).setText("parlix");
  program_->messages.answer = Button::yes;
  program_->trigger("mnuEdycjaNowyCzasownik");
  QVERIFY(program_->isEditing());
  QCOMPARE(program_->fields().value(0), "parlix");
  QCOMPARE(program_->entry().text(), "parler");
}

void EditingSuite::newVerbAsksFirstAndKeepsTheInfinitive() {
  program_->edit("parler");
  program_->entry().setText(" bloguer ");
  program_->messages.answer = Button::no;
  program_->trigger("mnuEdycjaNowyCzasownik");
  QCOMPARE(program_->messages.shown, Messages{MessageId::saveEditedVerb});
  QVERIFY(program_->isEditing());
  QCOMPARE(program_->entry().text(), "bloguer");
  QCOMPARE(program_->window.windowTitle(), "Odmiennik - edycja \"bloguer\"");
}

void EditingSuite::newVerbClearsTheBoxesWithoutAMessage() {
  program_->conjugate("aller");
  program_->trigger("mnuEdycjaNowyCzasownik");
  QVERIFY(program_->isEditing());
  QVERIFY(program_->messages.shown.empty());
  QCOMPARE(program_->form(0), QString());
  QCOMPARE(program_->form(99), QString());
  QCOMPARE(program_->entry().text(), "aller");
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
}

void EditingSuite::newVerbSaysNothingOfAMissingInfinitive() {
  program_->entry().clear();
  program_->trigger("mnuEdycjaNowyCzasownik");
  QVERIFY(program_->messages.shown.empty());
  QCOMPARE(program_->entry().text(), QString());
}

void EditingSuite::f2EntersAndTabGoesThroughTheBoxes() {
  program_->conjugate("parler");
  QTest::keyClick(&program_->entry(), Qt::Key_F2);
  QTRY_VERIFY(program_->isEditing());
  program_->box(0).setFocus();
  for (int slot = 0; slot < 5; ++slot) {
    QCOMPARE(QApplication::focusWidget(), &program_->box(slot));
    QTest::keyClicks(QApplication::focusWidget(), QString::number(slot));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QCOMPARE(program_->form(1), "1");
  QCOMPARE(program_->form(4), "4");
  QVERIFY(program_->messages.shown.empty());
}

void EditingSuite::theListLeavesEditModeFirst() {
  program_->edit("parler");
  program_->box(0).setText("parlix");
  program_->messages.answer = Button::no;
  auto& commands = program_->program.editing();
  QVERIFY(runListButton(app::ListButton::cmdEdytuj, "finir", commands));
  QCOMPARE(program_->messages.shown, Messages{MessageId::saveEditedVerb});
  QVERIFY(program_->isEditing());
  QCOMPARE(program_->form(0), "finis");
}

void EditingSuite::aCommandBehindAQuestionDoesNothing() {
  program_->edit("parler");
  program_->box(0).setText("parlix");
  program_->messages.answer = Button::no;
  bool isSecondDone = true;
  program_->messages.whileShown = [&] { isSecondDone = program_->program.editing().newVerb(); };
  program_->trigger("mnuEdycjaOdmień");
  QVERIFY(!isSecondDone);
  QCOMPARE(program_->messages.shown, Messages{MessageId::saveEditedVerb});
}

void EditingSuite::resetujAnsweredCancelLeavesEditMode() {
  program_->edit("parler");
  program_->entry().setText("resetuj");
  program_->messages.answers[MessageId::saveEditedVerb] = Button::no;
  program_->messages.answers[MessageId::settingsWillBeReset] = Button::cancel;
  program_->trigger("mnuEdycjaOdmień");
  const Messages expected{MessageId::saveEditedVerb, MessageId::settingsWillBeReset};
  QCOMPARE(program_->messages.shown, expected);
  QVERIFY(!program_->isEditing());
  QCOMPARE(program_->ends, 0);
}

// Tools for the disabled write into a line edit without asking whether it is locked.
void EditingSuite::aLockedBoxIsRestoredWhenWrittenInto() {
  program_->conjugate("parler");
  program_->box(0).setText("written");
  QCOMPARE(program_->form(0), "parle");
  program_->trigger("mnuEdycjaEdytujCzasownik");
  program_->box(0).setText("written");
  QCOMPARE(program_->form(0), "written");
}

void EditingSuite::foreignLettersAreNotEnteredIntoAForm() {
  program_->edit("parler");
  program_->box(0).setFocus();
  program_->box(0).selectAll();
  QTest::keyClicks(&program_->box(0), "p");
  QTest::sendKeyEvent(QTest::Click, &program_->box(0), Qt::Key_unknown, QString("ł"),
                      Qt::NoModifier);
  QCOMPARE(program_->form(0), "p");
}

std::unique_ptr<QObject> editingSuite() { return std::make_unique<EditingSuite>(); }

}  // namespace odmiennik::window_test

#include "editing_test.moc"
