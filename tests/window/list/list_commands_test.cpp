// SPDX-License-Identifier: GPL-3.0-or-later
// What the verb list does: commands of the main window, deleting, opening and closing.
#include <QScrollBar>

#include "tests/window/list_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {}  // namespace

class ListCommandsSuite : public QObject {
  Q_OBJECT

 private slots:
  void theButtonsHandTheirCommandsOver();
  void anEditedMainWindowIsLeftFirst();
  void aStoppedCommandEndsTheButtonsOwn();
  void enterConjugates();
  void aDoubleClickConjugates();
  void aTypedLetterJumps();
  void deletingRemovesTheVerbAndSelectsTheNeighbour();
  void deletingTheLastVerbDisablesTheButtons();
  void deletingAVerbThatIsNotTheUsersChangesNothing();
  void deleteModeShowsOneMovedButton();
  void aDoubleClickInDeleteModeDoesNothing();
  void openedAsAListItStandsAsDesignedAgain();
  void aClosedListBeginsAgain();
  void escapeAndZamknijClose();
  void theMenuOpensItBesideAUsableMainWindow();
  void theListConjugatesInTheMainWindow();
  void aSavedVerbIsListedAtOnce();
  void whatIsChosenAndSeenStaysAfterASave();
  void aSaveWhileALetterIsListedChangesNothing();
};

void ListCommandsSuite::theButtonsHandTheirCommandsOver() {
  ListUnderTest program({"bâtir"}, 1);
  program.press("cmdOdmień");
  QCOMPARE(program.commands.diary, QStringList{"conjugate bâtir"});
  program.commands.diary.clear();
  program.press("cmdEdytuj");
  QCOMPARE(program.commands.diary, (QStringList{"conjugate bâtir", "edit"}));
  program.commands.diary.clear();
  program.press("cmdDrukuj");
  QCOMPARE(program.commands.diary, (QStringList{"conjugate bâtir", "print"}));
  program.commands.diary.clear();
  program.press("cmdNowy");
  QCOMPARE(program.commands.diary, QStringList{"new"});
}

// The main window's own command asks whether to save.
void ListCommandsSuite::anEditedMainWindowIsLeftFirst() {
  ListUnderTest program({"bâtir"}, 1);
  program.commands.isBeingEdited = true;
  program.press("cmdOdmień");
  QCOMPARE(program.commands.diary, (QStringList{"edit", "conjugate bâtir"}));
}

void ListCommandsSuite::aStoppedCommandEndsTheButtonsOwn() {
  ListUnderTest program({"bâtir"}, 1);
  program.commands.isBeingEdited = true;
  program.commands.refusing = "edit";
  program.press("cmdDrukuj");
  QCOMPARE(program.commands.diary, QStringList{"edit"});
}

void ListCommandsSuite::enterConjugates() {
  ListUnderTest program({"finir", "aimer"}, 2);
  program.list().setFocus();
  QTest::keyClick(&program.list(), Qt::Key_Down);
  QTest::keyClick(&program.list(), Qt::Key_Return);
  QTRY_COMPARE(program.commands.diary, QStringList{"conjugate aimer"});
  QTest::keyClick(&program.list(), Qt::Key_Enter);
  QTRY_COMPARE(program.commands.diary.size(), 2);
}

void ListCommandsSuite::aDoubleClickConjugates() {
  ListUnderTest program({"finir", "aimer"}, 2);
  const QPoint place = program.list().visualItemRect(program.list().item(1)).center();
  QTest::mouseClick(program.list().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(program.list().viewport(), Qt::LeftButton, {}, place);
  QTRY_COMPARE(program.commands.diary, QStringList{"conjugate aimer"});
}

void ListCommandsSuite::aTypedLetterJumps() {
  const ListUnderTest program({"finir", "aimer", "parler"}, 3);
  program.list().setFocus();
  QTest::keyClick(&program.list(), Qt::Key_P);
  QCOMPARE(program.selected(), "parler");
}

void ListCommandsSuite::deletingRemovesTheVerbAndSelectsTheNeighbour() {
  ListUnderTest program({"finir", "aimer", "parler"}, 3);
  program.list().setCurrentRow(1);
  program.press("cmdUsuń");
  QCOMPARE(program.entries(), (QStringList{"finir", "parler"}));
  QCOMPARE(program.selected(), "parler");
  QCOMPARE(program.count(), "2/7342");
  QCOMPARE(program.verbs.count(), 2);
  QCOMPARE(program.verbs.infinitives(), (std::vector<std::string>{"finir", "parler"}));
  QVERIFY(program.messages.shown.empty());
}

void ListCommandsSuite::deletingTheLastVerbDisablesTheButtons() {
  ListUnderTest program({"finir"}, 1);
  program.press("cmdUsuń");
  QCOMPARE(program.count(), "0/7342");
  QCOMPARE(program.enabled(), QStringList{"cmdNowy"});
  QCOMPARE(program.verbs.count(), 0);
}

void ListCommandsSuite::deletingAVerbThatIsNotTheUsersChangesNothing() {
  ListUnderTest program({"finir"}, 1);
  const std::string before = program.folder.read("Czasowniki.dat");
  program.choose(kLetterD);
  program.press("cmdUsuń");
  QCOMPARE(program.list().count(), 1026);
  QCOMPARE(program.verbs.count(), 1);
  QCOMPARE(program.folder.read("Czasowniki.dat"), before);
}

void ListCommandsSuite::deleteModeShowsOneMovedButton() {
  ListUnderTest program({"finir", "aimer"}, 2);
  const QPoint designed = program.button("cmdOdmień").pos();
  program.window.showFor(app::ListPurpose::deletion);
  QCOMPARE(program.window.windowTitle(), "Usuń czasownik");
  for (const char* name : {"cmdOdmień", "cmdEdytuj", "cmdNowy", "cmdDrukuj"})
    QVERIFY2(!program.button(name).isVisible(), name);
  QTRY_COMPARE(program.button("cmdUsuń").pos(), designed);
  program.press("cmdUsuń");
  QCOMPARE(program.entries(), QStringList{"aimer"});
}

void ListCommandsSuite::aDoubleClickInDeleteModeDoesNothing() {
  ListUnderTest program({"finir"}, 1);
  program.window.showFor(app::ListPurpose::deletion);
  program.list().setFocus();
  QTest::keyClick(&program.list(), Qt::Key_Return);
  const QPoint place = program.list().visualItemRect(program.list().item(0)).center();
  QTest::mouseDClick(program.list().viewport(), Qt::LeftButton, {}, place);
  QCoreApplication::processEvents();
  QVERIFY(program.commands.diary.isEmpty());
  QCOMPARE(program.entries(), QStringList{"finir"});
}

void ListCommandsSuite::openedAsAListItStandsAsDesignedAgain() {
  ListUnderTest program({"finir"}, 1);
  const QPoint designed = program.button("cmdUsuń").pos();
  program.window.showFor(app::ListPurpose::deletion);
  QTRY_VERIFY(program.button("cmdUsuń").pos() != designed);
  program.window.showFor(app::ListPurpose::list);
  QCOMPARE(program.window.windowTitle(), "Lista czasowników");
  QTRY_COMPARE(program.button("cmdUsuń").pos(), designed);
  for (const char* name : {"cmdOdmień", "cmdEdytuj", "cmdNowy", "cmdDrukuj"})
    QVERIFY2(program.button(name).isVisible(), name);
}

void ListCommandsSuite::aClosedListBeginsAgain() {
  ListUnderTest program({"finir"}, 1);
  program.choose(kLetterD);
  program.window.close();
  program.window.showFor(app::ListPurpose::list);
  QCOMPARE(program.widget<QComboBox>("cmbLista").currentIndex(), 0);
  QCOMPARE(program.entries(), QStringList{"finir"});
}

void ListCommandsSuite::escapeAndZamknijClose() {
  ListUnderTest program({"finir"}, 1);
  QTest::keyClick(&program.list(), Qt::Key_Escape);
  QVERIFY(!program.window.isVisible());
  program.window.showFor(app::ListPurpose::list);
  program.press("cmdZamknij");
  QVERIFY(!program.window.isVisible());
  QVERIFY(program.main.isVisible());
}

void ListCommandsSuite::theMenuOpensItBesideAUsableMainWindow() {
  ProgramUnderTest program;
  program.item("mnuEdycjaUsuńCzasownik").trigger();
  QTRY_VERIFY(program.window.findChild<QDialog*>("frmLista") != nullptr);
  auto& list = program.widget<QDialog>("frmLista");
  QTRY_COMPARE(list.windowTitle(), "Usuń czasownik");
  program.item("mnuEdycjaLista").trigger();
  QTRY_COMPARE(list.windowTitle(), "Lista czasowników");
  QCOMPARE(program.window.findChildren<QDialog*>("frmLista").size(), 1);
  program.conjugate("finir");
  QTRY_COMPARE(program.form(0), "finis");
}

void ListCommandsSuite::theListConjugatesInTheMainWindow() {
  ProgramUnderTest program;
  program.item("mnuEdycjaLista").trigger();
  QTRY_VERIFY(program.window.findChild<QDialog*>("frmLista") != nullptr);
  auto& list = program.widget<QDialog>("frmLista");
  list.findChild<QComboBox*>("cmbLista")->setCurrentIndex(kLetterA);
  auto& verbs = *list.findChild<QListWidget*>("lstCzasowniki");
  verbs.setCurrentItem(verbs.findItems("aller", Qt::MatchExactly).value(0));
  list.findChild<QPushButton*>(QString::fromUtf8("cmdOdmień"))->click();
  QTRY_COMPARE(program.form(0), "vais");
  QCOMPARE(program.form(96), "aller");
}

void ListCommandsSuite::aSavedVerbIsListedAtOnce() {
  ListUnderTest program({}, 0);
  program.save("parler");
  QCOMPARE(program.entries(), QStringList{"parler"});
  QCOMPARE(program.selected(), "parler");
  QCOMPARE(program.count(), "1/7342");
  QCOMPARE(program.enabled().size(), 5);
  program.save("finir");
  QCOMPARE(program.entries(), (QStringList{"parler", "finir"}));
  QCOMPARE(program.selected(), "parler");
  program.press("cmdOdmień");
  QCOMPARE(program.commands.diary, QStringList{"conjugate parler"});
}

void ListCommandsSuite::whatIsChosenAndSeenStaysAfterASave() {
  constexpr int kVerbs = 60;
  ListUnderTest program(std::vector<std::string_view>(kVerbs, "aimer"), kVerbs);
  program.list().setCurrentRow(40);
  program.list().verticalScrollBar()->setValue(30);
  program.save("finir");
  QCOMPARE(program.list().count(), kVerbs + 1);
  QCOMPARE(program.list().currentRow(), 40);
  QCOMPARE(program.list().verticalScrollBar()->value(), 30);
}

void ListCommandsSuite::aSaveWhileALetterIsListedChangesNothing() {
  ListUnderTest program({"finir"}, 1);
  program.choose(kLetterD);
  program.list().setCurrentRow(500);
  program.save("parler");
  QCOMPARE(program.list().count(), 1026);
  QCOMPARE(program.list().currentRow(), 500);
  program.choose(0);
  QCOMPARE(program.entries(), (QStringList{"finir", "parler"}));
}

std::unique_ptr<QObject> listCommandsSuite() { return std::make_unique<ListCommandsSuite>(); }

}  // namespace odmiennik::window_test

#include "list_commands_test.moc"
