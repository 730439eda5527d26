// SPDX-License-Identifier: GPL-3.0-or-later
// The keys that lead through an edited verb and out of it.
#include <QMenu>

#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;
using Messages = std::vector<MessageId>;

// A key that is held down: it goes down once, and is then repeated wherever the focus is.
void hold(Qt::Key key) {
  QTest::keyPress(QApplication::focusWidget(), key);
  for (int i = 0; i < 3; ++i) {
    QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &repeated);
    QCoreApplication::processEvents();
  }
  QTest::keyRelease(QApplication::focusWidget(), key);
}

}  // namespace

class EditingKeysSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<EditedProgram>(); }
  void cleanup() { program_.reset(); }

  void escapeLeavesWithoutAQuestionWhereNothingHasChanged();
  void escapeAsksWhereSomethingHasChanged();
  void escapeAnsweredYesSaves();
  void escapeLeavesFromAnyControl_data();
  void escapeLeavesFromAnyControl();
  void escapeWithARefusedSaveKeepsEverything();
  void escapeClosesAnOpenMenuOnly();
  void escapeInTheListClosesTheListOnly();
  void theMenuTellsTheWayOut();
  void escapeDoesNothingOutsideOfEditing();
  void escapePressedTwiceLeavesOnce();
  void enterLeadsToTheNextBox();
  void enterLeadsFromTheLastBoxToTheEntryBox();
  void enterInTheEntryBoxStillConjugates();
  void enterInALockedBoxStillShowsTheHint();
  void anEnterWithAModifierStaysInItsBox();
  void enterHeldDownLeadsOneBoxOn();
  void enterHeldDownConjugatesOnce();

 private:
  void type(int slot, const QString& text) const {
    program_->box(slot).setFocus();
    QTest::keyClicks(&program_->box(slot), text);
  }

  std::unique_ptr<EditedProgram> program_;
};

void EditingKeysSuite::escapeLeavesWithoutAQuestionWhereNothingHasChanged() {
  program_->edit("parler");
  program_->box(3).setFocus();
  QTest::keyClick(&program_->box(3), Qt::Key_Escape);
  QTRY_VERIFY(!program_->isEditing());
  QVERIFY(program_->messages.shown.empty());
  QVERIFY(program_->box(3).isReadOnly());
  QCOMPARE(program_->window.windowTitle(), "Odmiennik");
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
}

void EditingKeysSuite::escapeAsksWhereSomethingHasChanged() {
  program_->edit("parler");
  type(3, "x");
  program_->messages.answer = Button::no;
  QTest::keyClick(&program_->box(3), Qt::Key_Escape);
  QTRY_VERIFY(!program_->isEditing());
  QCOMPARE(program_->messages.shown, Messages{MessageId::saveEditedVerb});
  QCOMPARE(program_->form(3), "parlons");
  QVERIFY(program_->userVerbs().isNull());
}

void EditingKeysSuite::escapeAnsweredYesSaves() {
  program_->edit("parler");
  program_->box(3).setText("parlix");
  program_->messages.answer = Button::yes;
  QTest::keyClick(&program_->entry(), Qt::Key_Escape);
  QTRY_VERIFY(!program_->isEditing());
  QCOMPARE(program_->fields().value(3), "parlix");
  QCOMPARE(program_->form(3), "parlix");
}

void EditingKeysSuite::escapeLeavesFromAnyControl_data() {
  QTest::addColumn<QString>("control");
  for (const char* control : {"txtCzasownik_96", "txtCzasownik_100", "cmdFrancuskaLitera_0",
                              "chkFrancuskaLitera_5", "chkZAvoir", "cmdOdmień"})
    QTest::newRow(control) << QString::fromUtf8(control);
}

void EditingKeysSuite::escapeLeavesFromAnyControl() {
  QFETCH(QString, control);
  program_->edit("parler");
  auto& widget = program_->widget<QWidget>(control);
  widget.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&widget, Qt::Key_Escape);
  QTRY_VERIFY(!program_->isEditing());
}

void EditingKeysSuite::escapeWithARefusedSaveKeepsEverything() {
  program_->edit("parler");
  program_->entry().setText("chanté");
  type(3, "x");
  const QString typed = program_->form(3);
  program_->messages.answer = Button::yes;
  QTest::keyClick(&program_->box(3), Qt::Key_Escape);
  QTRY_COMPARE(program_->messages.shown,
               (Messages{MessageId::saveEditedVerb, MessageId::infinitiveNeeded}));
  QVERIFY(program_->isEditing());
  QCOMPARE(program_->form(3), typed);
  QCOMPARE(program_->entry().text(), "chanté");
}

void EditingKeysSuite::escapeClosesAnOpenMenuOnly() {
  program_->edit("parler");
  program_->box(3).setFocus();
  auto& menu = program_->widget<QMenu>("mnuCzasownik");
  program_->window.menuBar()->setActiveAction(menu.menuAction());
  QTRY_COMPARE(QApplication::activePopupWidget(), &menu);
  QTest::keyClick(&menu, Qt::Key_Escape);
  QTRY_VERIFY(!menu.isVisible());
  QCoreApplication::processEvents();
  QVERIFY(program_->isEditing());
}

void EditingKeysSuite::escapeInTheListClosesTheListOnly() {
  program_->edit("parler");
  program_->trigger("mnuEdycjaLista");
  auto& list = program_->widget<QDialog>("frmLista");
  QTRY_VERIFY(list.isActiveWindow());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  QTRY_VERIFY(program_->window.findChild<QDialog*>("frmLista") == nullptr);
  QVERIFY(program_->isEditing());
}

void EditingKeysSuite::theMenuTellsTheWayOut() {
  const QAction& item = program_->item("mnuEdycjaEdytujCzasownik");
  QCOMPARE(item.shortcut(), QKeySequence(Qt::Key_F2));
  program_->edit("parler");
  QCOMPARE(item.shortcut(), QKeySequence(Qt::Key_Escape));
  QTest::keyClick(&program_->entry(), Qt::Key_F2);
  QTRY_VERIFY(!program_->isEditing());
  QCOMPARE(item.shortcuts(), QList<QKeySequence>{Qt::Key_F2});
}

void EditingKeysSuite::escapeDoesNothingOutsideOfEditing() {
  program_->conjugate("parler");
  program_->entry().setText("fin");
  QTest::keyClick(&program_->entry(), Qt::Key_Escape);
  QCoreApplication::processEvents();
  QCOMPARE(program_->entry().text(), "fin");
  QCOMPARE(program_->form(0), "parle");
  QVERIFY(!program_->isEditing());
}

// The second meets the question's answer, or no edit mode any more.
void EditingKeysSuite::escapePressedTwiceLeavesOnce() {
  program_->edit("parler");
  type(3, "x");
  program_->messages.answer = Button::no;
  QTest::keyClick(&program_->box(3), Qt::Key_Escape);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  QTRY_VERIFY(!program_->isEditing());
  QCoreApplication::processEvents();
  QVERIFY(!program_->isEditing());
  QCOMPARE(program_->messages.shown, Messages{MessageId::saveEditedVerb});
}

void EditingKeysSuite::enterLeadsToTheNextBox() {
  program_->edit("parler");
  program_->box(0).setFocus();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    const QString expected = program_->box(0).hasFocus() ? "txtCzasownik_1" : "txtCzasownik_2";
    QTest::keyClick(QApplication::focusWidget(), key,
                    key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), expected);
  }
  QCOMPARE(program_->box(2).selectedText(), "parle");
  QVERIFY(program_->isEditing());
  QVERIFY(program_->messages.shown.empty());
}

void EditingKeysSuite::enterLeadsFromTheLastBoxToTheEntryBox() {
  program_->edit("parler");
  program_->entry().setFocus();
  QWidget* last = &program_->entry();
  int boxes = 1;
  for (QTest::keyClick(last, Qt::Key_Tab); QApplication::focusWidget() != &program_->entry();
       QTest::keyClick(last, Qt::Key_Return)) {
    last = QApplication::focusWidget();
    ++boxes;
    QVERIFY(boxes <= engine::kSlotCount);
  }
  QCOMPARE(boxes, engine::kSlotCount);
  QVERIFY(program_->isEditing());
}

void EditingKeysSuite::enterInTheEntryBoxStillConjugates() {
  program_->edit("parler");
  program_->messages.answer = Button::no;
  program_->entry().setText("finir");
  QTest::keyClick(&program_->entry(), Qt::Key_Return);
  QTRY_COMPARE(program_->form(0), "finis");
  QCOMPARE(program_->messages.shown, Messages{MessageId::saveEditedVerb});
  QVERIFY(!program_->isEditing());
}

void EditingKeysSuite::enterInALockedBoxStillShowsTheHint() {
  program_->conjugate("parler");
  program_->box(0).setFocus();
  QTest::keyClick(&program_->box(0), Qt::Key_Return);
  QTRY_COMPARE(program_->messages.shown, Messages{MessageId::typeInfinitive});
  QCOMPARE(QApplication::focusWidget(), &program_->box(0));
}

void EditingKeysSuite::anEnterWithAModifierStaysInItsBox() {
  program_->edit("parler");
  program_->box(0).setFocus();
  QTest::keyClick(&program_->box(0), Qt::Key_Return, Qt::ControlModifier);
  QCOMPARE(QApplication::focusWidget(), &program_->box(0));
}

void EditingKeysSuite::enterHeldDownLeadsOneBoxOn() {
  program_->edit("parler");
  program_->box(0).setFocus();
  hold(Qt::Key_Return);
  QCOMPARE(QApplication::focusWidget(), &program_->box(1));
}

void EditingKeysSuite::enterHeldDownConjugatesOnce() {
  const int before = program_->program.settings().conjugationCount();
  program_->entry().setText("finir");
  hold(Qt::Key_Return);
  QCOMPARE(program_->program.settings().conjugationCount(), before + 1);
}

std::unique_ptr<QObject> editingKeysSuite() { return std::make_unique<EditingKeysSuite>(); }

}  // namespace odmiennik::window_test

#include "editing_keys_test.moc"
