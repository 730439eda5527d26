// The menu tree.
#include <QMenu>

#include "app/platform/platform.h"
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

  void theTreeHasItsCaptionsInOrder_data();
  void theTreeHasItsCaptionsInOrder();
  void everyItemHasANameOfItsOwn();
  void whatCannotBeDoneAtTheStartIsDisabled();
  void koniecClosesTheWindow();
  void wyszukajIsInert();
  void theCharacterMapIsOfferedWhereThereIsOne();

 private:
  std::unique_ptr<ProgramUnderTest> program_;
};

void MenuSuite::theTreeHasItsCaptionsInOrder_data() {
  QTest::addColumn<QString>("menu");
  QTest::addColumn<QString>("captions");
  QTest::newRow("Plik") << "mnuPlik"
                        << "&Plik: &Zapisz Czasownik, -, &Drukuj, &Ustawienia drukarki, -, &Koniec";
  QTest::newRow("Edycja") << "mnuEdycja"
                          << "&Edycja: &Tablica znaków, -, &Wytnij, &Kopiuj, Wkl&ej, &Usuń, -, "
                             "&Zaznacz wszystko";
  QTest::newRow("Czasownik") << "mnuCzasownik"
                             << "&Czasownik: &Lista, -, &Odmień, &Nowy, E&dytuj, U&suń, -, "
                                "&Autouzupełnianie, &Wyszukaj";
  QTest::newRow("Widok") << "mnuWidok"
                         << "&Widok: &Zawsze na wierzchu, &Kolory";
  QTest::newRow("Pomoc") << "mnuPomoc"
                         << "Pomo&c: &Tematy pomocy, &Porada dnia, Jak odmienić czasownik?, -, "
                            "&O programie...";
}

void MenuSuite::theTreeHasItsCaptionsInOrder() {
  QFETCH(QString, menu);
  const auto& found = program_->widget<QMenu>(menu);
  QStringList captions;
  for (const QAction* action : found.actions())
    captions += action->isSeparator() ? "-" : action->text();
  QTEST(found.title() + ": " + captions.join(", "), "captions");
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
  QCOMPARE(items, 30);
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
  const QStringList expected{"mnuPlikZapiszCzasownik", "mnuEdycjaZaznaczWszystko"};
  QCOMPARE(disabled, expected);
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

void MenuSuite::theCharacterMapIsOfferedWhereThereIsOne() {
  QCOMPARE(program_->item("mnuEdycjaTablica").isEnabled(), !app::platform::characterMap().empty());
}

std::unique_ptr<QObject> menuSuite() { return std::make_unique<MenuSuite>(); }

}  // namespace odmiennik::window_test

#include "menu_test.moc"
