// SPDX-License-Identifier: GPL-3.0-or-later
// Saving an edited verb.
#include <QClipboard>
#include <QGuiApplication>

#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;
using Messages = std::vector<MessageId>;

}  // namespace

class SavingSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<EditedProgram>(); }
  void cleanup() { program_.reset(); }

  void savingPassesForInfinitivesInROrE_data();
  void savingPassesForInfinitivesInROrE();
  void savingIsRefusedForOtherInfinitives_data();
  void savingIsRefusedForOtherInfinitives();
  void blanksAroundTheInfinitiveAreNotSaved();
  void aReflexivePrefixIsOneHoweverItIsTyped();
  void aForeignLetterIsNeverSavedAsAQuestionMark();
  void savingTwiceRewritesTheSameRecord();
  void leavingAfterSaveAsksNothing();
  void leavingAfterTypingAsksOnceAndKeepsTheAnswerNo();
  void leavingAfterTypingSavesOnYes();
  void aMissingFormIsSavedAsAnEmptyOne();
  void aSavedVerbIsFoundAgain();
  void theAuxiliaryIsSavedAndTheBoxesStay();
  void ctrlSSavesFromAnyBox();
  void closingWhileEditingAsksAndSaves();

 private:
  std::unique_ptr<EditedProgram> program_;
};

void SavingSuite::savingPassesForInfinitivesInROrE_data() {
  QTest::addColumn<QString>("infinitive");
  for (const char* infinitive : {"aimer", "finir", "être", "  faire "})
    QTest::newRow(infinitive) << QString::fromUtf8(infinitive);
}

void SavingSuite::savingPassesForInfinitivesInROrE() {
  QFETCH(QString, infinitive);
  program_->edit("parler");
  program_->entry().setText(infinitive);
  program_->trigger("mnuPlikZapiszCzasownik");
  QVERIFY(program_->messages.shown.empty());
  QVERIFY(!program_->isEditing());
  QCOMPARE(program_->count(), 1);
  QCOMPARE(QString::fromLatin1(program_->fields().value(96)), infinitive.trimmed());
}

void SavingSuite::savingIsRefusedForOtherInfinitives_data() {
  QTest::addColumn<QString>("infinitive");
  for (const char* infinitive : {"ab", "re", "chanté", "", "   "})
    QTest::newRow(infinitive) << QString::fromUtf8(infinitive);
}

void SavingSuite::savingIsRefusedForOtherInfinitives() {
  QFETCH(QString, infinitive);
  program_->edit("parler");
  program_->box(0).setText("xxx");
  program_->entry().setText(infinitive);
  program_->trigger("mnuPlikZapiszCzasownik");
  QCOMPARE(program_->messages.shown, Messages{MessageId::infinitiveNeeded});
  QVERIFY(program_->isEditing());
  QCOMPARE(program_->form(0), "xxx");
  QCOMPARE(program_->entry().text(), infinitive);
  QVERIFY(program_->userVerbs().isNull());
}

void SavingSuite::blanksAroundTheInfinitiveAreNotSaved() {
  program_->edit("parler");
  program_->entry().setText("  faire ");
  program_->trigger("mnuPlikZapiszCzasownik");
  QCOMPARE(program_->fields().value(96), "faire");
  QCOMPARE(program_->entry().text(), "faire");
}

void SavingSuite::aReflexivePrefixIsOneHoweverItIsTyped() {
  for (const char* typed : {"Se zyzer", "se zyzer", " SE zyzer "}) {
    program_->edit("zyzer");
    program_->entry().setText(QString::fromUtf8(typed));
    program_->box(0).setText("me zyzix");
    program_->trigger("mnuPlikZapiszCzasownik");
    QCOMPARE(program_->fields().value(96), "se zyzer");
    QCOMPARE(program_->count(), 1);
  }
  QCOMPARE(program_->userVerbs().count('\n'), 1);
  program_->conjugate("se zyzer");
  QCOMPARE(program_->form(0), "me zyzix");
}

void SavingSuite::aForeignLetterIsNeverSavedAsAQuestionMark() {
  program_->edit("parler");
  QGuiApplication::clipboard()->setText("łpaśrlξe");
  program_->box(0).selectAll();
  program_->box(0).paste();
  program_->trigger("mnuPlikZapiszCzasownik");
  QCOMPARE(program_->fields().value(0), "parle");
  QVERIFY(!program_->userVerbs().contains('?'));
}

void SavingSuite::savingTwiceRewritesTheSameRecord() {
  program_->edit("parler");
  program_->trigger("mnuPlikZapiszCzasownik");
  const QByteArray once = program_->userVerbs();
  QVERIFY(!once.isEmpty());
  QCOMPARE(program_->count(), 1);
  program_->trigger("mnuEdycjaEdytujCzasownik");
  program_->trigger("mnuPlikZapiszCzasownik");
  QCOMPARE(program_->userVerbs(), once);
  QCOMPARE(program_->count(), 1);
}

void SavingSuite::leavingAfterSaveAsksNothing() {
  program_->edit("parler");
  program_->box(0).setText("parlix");
  program_->trigger("mnuPlikZapiszCzasownik");
  QVERIFY(!program_->isEditing());
  program_->trigger("mnuEdycjaOdmień");
  QVERIFY(program_->messages.shown.empty());
  QCOMPARE(program_->form(0), "parlix");
}

void SavingSuite::leavingAfterTypingAsksOnceAndKeepsTheAnswerNo() {
  program_->edit("parler");
  program_->box(0).setFocus();
  QTest::keyClicks(&program_->box(0), "x");
  program_->messages.answer = Button::no;
  program_->trigger("mnuEdycjaOdmień");
  QCOMPARE(program_->messages.shown, Messages{MessageId::saveEditedVerb});
  QVERIFY(!program_->isEditing());
  QCOMPARE(program_->form(0), "parle");
  QVERIFY(program_->userVerbs().isNull());
}

void SavingSuite::leavingAfterTypingSavesOnYes() {
  program_->edit("parler");
  program_->box(0).setText("parlix");
  program_->messages.answer = Button::yes;
  const int conjugated = program_->program.settings().conjugationCount();
  program_->trigger("mnuEdycjaOdmień");
  QCOMPARE(program_->messages.shown, Messages{MessageId::saveEditedVerb});
  QVERIFY(!program_->isEditing());
  QCOMPARE(program_->fields().value(0), "parlix");
  QCOMPARE(program_->form(0), "parlix");
  QCOMPARE(program_->program.settings().conjugationCount(), conjugated + 1);
}

void SavingSuite::aMissingFormIsSavedAsAnEmptyOne() {
  program_->edit("parler");
  program_->box(0).setText(" -- ");
  program_->box(1).setText(" - ");
  program_->trigger("mnuPlikZapiszCzasownik");
  QCOMPARE(program_->fields().value(0), "");
  QCOMPARE(program_->fields().value(1), "-");
  QCOMPARE(program_->form(0), " -- ");
}

void SavingSuite::aSavedVerbIsFoundAgain() {
  program_->edit("blablater");
  program_->box(0).setText("blablatte");
  program_->trigger("mnuPlikZapiszCzasownik");
  program_->conjugate("aller");
  program_->messages.shown.clear();
  program_->conjugate("BLABLATER");
  QCOMPARE(program_->form(0), "blablatte");
  QVERIFY(program_->messages.shown.empty());
}

void SavingSuite::theAuxiliaryIsSavedAndTheBoxesStay() {
  program_->edit("parler");
  program_->box(0).setText("parlix");
  program_->auxiliary().click();
  QCOMPARE(program_->auxiliary().text(), "&se conjugué avec être");
  QCOMPARE(program_->form(0), "parlix");
  QCOMPARE(program_->form(24), "ai parlé");
  program_->trigger("mnuPlikZapiszCzasownik");
  QCOMPARE(program_->fields().value(101).trimmed(), "0");
  QVERIFY(!program_->auxiliary().isChecked());
}

void SavingSuite::ctrlSSavesFromAnyBox() {
  program_->edit("parler");
  program_->box(30).setFocus();
  program_->box(30).selectAll();
  QTest::keyClicks(&program_->box(30), "xyz");
  QTest::keyClick(&program_->box(30), Qt::Key_S, Qt::ControlModifier);
  QTRY_VERIFY(!program_->isEditing());
  QCOMPARE(program_->fields().value(30), "xyz");
}

void SavingSuite::closingWhileEditingAsksAndSaves() {
  program_->edit("parler");
  program_->box(0).setText("parlix");
  program_->messages.answer = Button::yes;
  QVERIFY(program_->window.close());
  const Messages expected{MessageId::endProgram, MessageId::saveEditedVerb};
  QCOMPARE(program_->messages.shown, expected);
  QCOMPARE(program_->fields().value(0), "parlix");
}

std::unique_ptr<QObject> savingSuite() { return std::make_unique<SavingSuite>(); }

}  // namespace odmiennik::window_test

#include "saving_test.moc"
