// SPDX-License-Identifier: GPL-3.0-or-later
// The menu tree.
#include <QMenu>

#include "tests/window/only_path.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

// The menus of the tree; Qt adds one of its own for a menu bar that lacks room.
QList<QMenu*> menusOf(const ProgramUnderTest& program) {
  QList<QMenu*> menus = program.window.findChildren<QMenu*>();
  menus.removeIf([](const QMenu* menu) { return !menu->objectName().startsWith("mnu"); });
  return menus;
}

}  // namespace

class MenuSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<ProgramUnderTest>(); }
  void cleanup() { program_.reset(); }

  void theTreeHasItsNamesAndCaptionsInOrder_data();
  void theTreeHasItsNamesAndCaptionsInOrder();
  void everyItemHasANameOfItsOwn();
  void whatCannotBeDoneAtTheStartIsDisabled();
  void theMenuTellsTheKeysOfItsItems_data();
  void theMenuTellsTheKeysOfItsItems();
  void ctrlLOpensTheList();
  void f10OpensTheFirstMenu();
  void koniecClosesTheWindow();
  void wyszukajIsInert();
  void withoutACharacterMapItsItemIsDisabled();
  void theFirstCharacterMapOnThePathIsStarted();

 private:
  std::unique_ptr<ProgramUnderTest> program_;
};

void MenuSuite::theTreeHasItsNamesAndCaptionsInOrder_data() {
  QTest::addColumn<QString>("title");
  QTest::addColumn<QStringList>("items");
  QTest::newRow("mnuPlik") << "&Plik"
                           << QStringList{"mnuPlikZapiszCzasownik &Zapisz Czasownik",
                                          "mnuPlikZapiszOdmianę Zapisz &odmianę jako…",
                                          "mnuPlikLinia1 -",
                                          "mnuPlikDrukuj &Drukuj",
                                          "mnuPlikUstawieniaDrukarki &Ustawienia drukarki",
                                          "mnuPlikLinia2 -",
                                          "mnuPlikKoniec &Koniec"};
  QTest::newRow("mnuEdycja") << "&Edycja"
                             << QStringList{"mnuEdycjaTablica &Tablica znaków",
                                            "mnuEdycjaLinia3 -",
                                            "mnuEdycjaCofnij &Cofnij",
                                            "mnuEdycjaLinia6 -",
                                            "mnuEdycjaWytnij &Wytnij",
                                            "mnuEdycjaKopiuj &Kopiuj",
                                            "mnuEdycjaWklej Wkl&ej",
                                            "mnuEdycjaUsuń &Usuń",
                                            "mnuEdycjaLnia1 -",
                                            "mnuEdycjaZaznaczWszystko &Zaznacz wszystko",
                                            "mnuEdycjaLinia7 -",
                                            "mnuEdycjaKopiujOdmianę Kopiuj całą &odmianę"};
  QTest::newRow("mnuCzasownik") << "&Czasownik"
                                << QStringList{"mnuEdycjaLista &Lista",
                                               "mnuCzasownikZnajdź Znajdź &formę…",
                                               "mnuCzasownikSkąd Skąd &ta forma?",
                                               "mnuEdycjaLinia4 -",
                                               "mnuEdycjaOdmień &Odmień",
                                               "mnuEdycjaNowyCzasownik &Nowy",
                                               "mnuEdycjaEdytujCzasownik E&dytuj",
                                               "mnuEdycjaUsuńCzasownik U&suń",
                                               "mnuCzasownikPrzywróć P&rzywróć odmianę programu",
                                               "mnuEdycjaLinia5 -",
                                               "mnuCzasownikInformacje &Informacje o czasowniku",
                                               "mnuCzasownikBezokolicznik Pole &bezokolicznika",
                                               "mnuCzasownikAutouzupełnianie &Autouzupełnianie",
                                               "mnuEdycjaWyszukaj &Wyszukaj"};
  QTest::newRow("mnuWidok") << "&Widok"
                            << QStringList{"mnuWidokNaWierzchu &Zawsze na wierzchu",
                                           "mnuWidokKolory &Kolory", "mnuWidokLinia1 -",
                                           "mnuWidokNorma &Formy według dzisiejszej normy"};
  QTest::newRow("mnuPomoc") << "Pomo&c"
                            << QStringList{"mnuPomocTematy &Tematy pomocy",
                                           "mnuPomocPoradaDnia &Porada dnia",
                                           "mnuPomocJak Jak odmienić czasownik?",
                                           "mnuPomocLinia1 -",
                                           "mnuPomocOProgramie &O programie..."};
}

// deliberate: the verb commands are named after the edit menu, and one separator is spelled "Lnia".
void MenuSuite::theTreeHasItsNamesAndCaptionsInOrder() {
  const auto& menu = program_->widget<QMenu>(QTest::currentDataTag());
  QStringList items;
  for (const QAction* action : menu.actions())
    items += action->objectName() + ' ' + (action->isSeparator() ? "-" : action->text());
  QTEST(menu.title(), "title");
  QTEST(items, "items");
}

void MenuSuite::everyItemHasANameOfItsOwn() {
  QSet<QString> names;
  int items = 0;
  for (const QMenu* menu : menusOf(*program_))
    for (const QAction* action : menu->actions()) {
      QVERIFY2(action->objectName().startsWith("mnu"), qPrintable(action->text()));
      names.insert(action->objectName());
      ++items;
    }
  QCOMPARE(items, 42);
  QCOMPARE(names.size(), items);
}

// All of the first word is selected, and no verb is edited.
void MenuSuite::whatCannotBeDoneAtTheStartIsDisabled() {
  QStringList disabled;
  for (const QMenu* menu : menusOf(*program_))
    for (const QAction* action : menu->actions())
      if (!action->isEnabled()) disabled += action->objectName();
  disabled.removeAll("mnuEdycjaTablica");  // as the system has one
  disabled.removeAll("mnuEdycjaWklej");    // as the clipboard allows
  const QStringList expected{"mnuPlikZapiszCzasownik", "mnuPlikZapiszOdmianę",
                             "mnuEdycjaCofnij",        "mnuEdycjaZaznaczWszystko",
                             "mnuEdycjaKopiujOdmianę", "mnuCzasownikPrzywróć"};
  QCOMPARE(disabled, expected);
}

void MenuSuite::theMenuTellsTheKeysOfItsItems_data() {
  QTest::addColumn<QString>("item");
  QTest::addColumn<QString>("key");
  QTest::newRow("list") << "mnuEdycjaLista"
                        << "Ctrl+L";
  QTest::newRow("find") << "mnuCzasownikZnajdź"
                        << "Ctrl+F";
  QTest::newRow("explain") << "mnuCzasownikSkąd"
                           << "Shift+F1";
  QTest::newRow("help") << "mnuPomocTematy"
                        << "F1";
  QTest::newRow("undo") << "mnuEdycjaCofnij"
                        << "Ctrl+Z";
}

void MenuSuite::theMenuTellsTheKeysOfItsItems() {
  QFETCH(QString, item);
  const QAction& action = program_->item(item.toUtf8().constData());
  QTEST(action.shortcut().toString(), "key");
  QVERIFY(action.isShortcutVisibleInContextMenu());
}

void MenuSuite::ctrlLOpensTheList() {
  QTest::keyClick(&program_->entry(), Qt::Key_L, Qt::ControlModifier);
  QTRY_VERIFY(program_->window.findChild<QDialog*>("frmLista") != nullptr);
  QVERIFY(program_->widget<QDialog>("frmLista").isVisible());
}

// From a locked box, without the hint that other keys are answered with; Escape leads back.
void MenuSuite::f10OpensTheFirstMenu() {
  program_->conjugate("parler");
  program_->box(3).setFocus();
  QTest::keyClick(&program_->box(3), Qt::Key_F10);
  auto& menu = program_->widget<QMenu>("mnuPlik");
  QTRY_COMPARE(QApplication::activePopupWidget(), &menu);
  QTest::keyClick(&menu, Qt::Key_Down);
  QVERIFY(menu.activeAction() != nullptr);
  QTest::keyClick(&menu, Qt::Key_Escape);
  QTRY_VERIFY(!menu.isVisible());
  QTest::keyClick(program_->window.menuBar(), Qt::Key_Escape);
  QVERIFY(QTest::qWaitForWindowActive(&program_->window));
  QCOMPARE(QApplication::focusWidget(), &program_->box(3));
  QVERIFY(program_->messages.shown.empty());
}

void MenuSuite::koniecClosesTheWindow() {
  program_->messages.answer = dictionary::Button::yes;
  program_->item("mnuPlikKoniec").trigger();
  QTRY_VERIFY(!program_->window.isVisible());
}

// deliberate: the item is there and does nothing.
void MenuSuite::wyszukajIsInert() {
  program_->conjugate("parler");
  program_->item("mnuEdycjaWyszukaj").trigger();
  QCoreApplication::processEvents();
  QCOMPARE(program_->form(0), "parle");
  QVERIFY(program_->messages.shown.empty());
}

void MenuSuite::withoutACharacterMapItsItemIsDisabled() {
  program_.reset();
  const OnlyPath nothing;
  const ProgramUnderTest program;
  QVERIFY(!program.item("mnuEdycjaTablica").isEnabled());
}

void MenuSuite::theFirstCharacterMapOnThePathIsStarted() {
  program_.reset();
  const OnlyPath path;
  path.addProgram("gnome-characters");
  path.addProgram("kcharselect");
  const ProgramUnderTest program;
  QVERIFY(program.item("mnuEdycjaTablica").isEnabled());
  program.item("mnuEdycjaTablica").trigger();
  QTRY_VERIFY(path.hasStarted("gnome-characters"));
  QVERIFY(!path.hasStarted("kcharselect"));
}

std::unique_ptr<QObject> menuSuite() { return std::make_unique<MenuSuite>(); }

}  // namespace odmiennik::window_test

#include "menu_test.moc"
