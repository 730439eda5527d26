// SPDX-License-Identifier: GPL-3.0-or-later
// The window that says how a form came to be.
#include <QApplication>
#include <QMenu>
#include <QPlainTextEdit>

#include "app/common/announcement.h"
#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class ExplainingSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<EditedProgram>(); }
  void cleanup();

  void theItemOfABoxTellsHowItsFormCameToBe();
  void shiftF1TellsItToo();
  void itIsHeardWithTheNameOfTheBox();
  void escapeLeadsBackToTheBox();
  void anotherFormTakesThePlaceOfTheFirst();
  void anotherVerbClosesIt();
  void aBoxWithoutAFormSaysWhy();
  void aTypedFormIsSaidToBeTyped();
  void beforeTheFirstVerbItAsksForOne();
  void tabLeadsToItsButton();

 private:
  void ask(int slot) const;
  [[nodiscard]] QPlainTextEdit& story() const {
    return program_->widget<QPlainTextEdit>("txtSkąd");
  }
  [[nodiscard]] QStringList lines() const { return story().toPlainText().split('\n'); }

  std::unique_ptr<EditedProgram> program_;
};

void ExplainingSuite::cleanup() {
  app::announceTo({});
  program_.reset();
}

void ExplainingSuite::ask(int slot) const {
  program_->window.activateWindow();
  QTRY_COMPARE(QApplication::activeWindow(), &program_->window);
  program_->box(slot).setFocus();
  program_->item("mnuCzasownikSkąd").trigger();
  QTRY_VERIFY(program_->window.findChild<QPlainTextEdit*>("txtSkąd") != nullptr);
  QVERIFY(QTest::qWaitForWindowActive(story().window()));
}

void ExplainingSuite::theItemOfABoxTellsHowItsFormCameToBe() {
  program_->conjugate("manger");
  app::FormBox& box = program_->box(3);
  emit box.customContextMenuRequested(box.rect().center());
  auto* menu = box.findChild<QMenu*>();
  QVERIFY(menu != nullptr);
  QCOMPARE(menu->actions().last(), &program_->item("mnuCzasownikSkąd"));
  menu->close();
  ask(3);
  QCOMPARE(lines(), (QStringList{"nous mangeons", "reguła -ger (wzór: manger)",
                                 "temat mang-, e przed o, końcówka -ons"}));
  QVERIFY(!story().window()->isModal());
}

void ExplainingSuite::shiftF1TellsItToo() {
  program_->conjugate("manger");
  program_->box(0).setFocus();
  QTest::keyClick(&program_->box(0), Qt::Key_F1, Qt::ShiftModifier);
  QTRY_VERIFY(program_->window.findChild<QPlainTextEdit*>("txtSkąd") != nullptr);
  QTRY_COMPARE(lines().first(), "je mange");
}

void ExplainingSuite::itIsHeardWithTheNameOfTheBox() {
  program_->conjugate("manger");
  QStringList heard;
  app::announceTo([&heard](const QString& sentence) { heard += sentence; });
  ask(3);
  QTRY_VERIFY(heard.join(' ').contains("Indicatif présent, nous: nous mangeons; reguła -ger"));
}

void ExplainingSuite::escapeLeadsBackToTheBox() {
  program_->conjugate("manger");
  ask(3);
  QTest::keyClick(&story(), Qt::Key_Escape);
  QTRY_VERIFY(!story().isVisible());
  QVERIFY(QTest::qWaitForWindowActive(&program_->window));
  QTRY_VERIFY(program_->box(3).hasFocus());
}

void ExplainingSuite::anotherFormTakesThePlaceOfTheFirst() {
  program_->conjugate("manger");
  ask(3);
  ask(18);
  QTRY_COMPARE(lines().first(), "je mangerai");
  QCOMPARE(program_->window.findChildren<QPlainTextEdit*>("txtSkąd").size(), 1);
}

void ExplainingSuite::anotherVerbClosesIt() {
  program_->conjugate("manger");
  ask(3);
  program_->window.activateWindow();
  program_->conjugate("finir");
  QTRY_VERIFY(!story().isVisible());
}

void ExplainingSuite::aBoxWithoutAFormSaysWhy() {
  program_->conjugate("pouvoir");
  ask(90);
  QVERIFY(lines().contains("gramatyki nie znają tej formy: czasownik jest ułomny"));
}

void ExplainingSuite::aTypedFormIsSaidToBeTyped() {
  program_->edit("parler");
  program_->box(0).setText("parrle");
  ask(0);
  QCOMPARE(lines(), QStringList{"forma wpisana przez użytkownika, program jej nie utworzył"});
  ask(1);
  QTRY_COMPARE(lines().first(), "tu parles");
}

void ExplainingSuite::beforeTheFirstVerbItAsksForOne() {
  ask(0);
  QCOMPARE(lines(), QStringList{"najpierw odmień czasownik"});
}

void ExplainingSuite::tabLeadsToItsButton() {
  program_->conjugate("manger");
  ask(3);
  QTest::keyClick(&story(), Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget()->objectName(), "cmdZamknij");
}

std::unique_ptr<QObject> explainingSuite() { return std::make_unique<ExplainingSuite>(); }

}  // namespace odmiennik::window_test

#include "explaining_test.moc"
