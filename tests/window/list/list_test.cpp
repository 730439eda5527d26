// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in the verb list, and what can be done with it.
#include "dictionary/verb_index.h"
#include "tests/window/list_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

// Does something whenever a widget is painted.
class WhenPainted final : public QObject {
 public:
  WhenPainted(QWidget& widget, std::function<void()> doing) : doing_(std::move(doing)) {
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) doing_();
    return false;
  }

 private:
  std::function<void()> doing_;
};

}  // namespace

class ListSuite : public QObject {
  Q_OBJECT

 private slots:
  void everyControlHasItsNameAndCaption();
  void theChoicesAreTheUsersVerbsAndTheLetters();
  void withoutAFileNothingIsEnabled();
  void withCountZeroNothingIsListed();
  void theListShowsEveryLineAndTheStoredCountEnables();
  void theFirstVerbIsSelectedAtLoad();
  void aLetterIsListedInTheOrderOfTheIndex();
  void aLetterWithoutVerbsLeavesAnEmptyList();
  void deletingStaysAsTheUsersListSetIt();
  void theBarGrowsFromEmptyToFull();
  void whileALetterIsFilledNothingIsTaken();
  void anEmptyListSaysWhatToDo();
  void aLetterWithoutVerbsSaysSo();
  void anEmptyListForDeletingSaysSo();
  void theHintGoesWithTheFirstVerb();
  void whatIsTypedWithoutAccentsIsShownInTheUpperThird();
};

void ListSuite::everyControlHasItsNameAndCaption() {
  const ListUnderTest program({}, 0);
  QCOMPARE(program.window.objectName(), "frmLista");
  QCOMPARE(program.window.windowTitle(), "Lista czasowników");
  QVERIFY(!program.window.isModal());
  QCOMPARE(program.widget<QLabel>("lblIlość").text(), "Ilość czasowników:");
  QCOMPARE(program.widget<QLabel>("lblWPrzygotowaniu").text(),
           "Przygotowywanie listy czasowników...");
  QCOMPARE(program.button("cmdOdmień").text(), "&Odmień");
  QCOMPARE(program.button("cmdEdytuj").text(), "&Edytuj");
  QCOMPARE(program.button("cmdNowy").text(), "&Nowy");
  QCOMPARE(program.button("cmdUsuń").text(), "&Usuń");
  QCOMPARE(program.button("cmdDrukuj").text(), "&Drukuj");
  QCOMPARE(program.button("cmdZamknij").text(), "&Zamknij");
  QVERIFY(!program.widget<QLabel>("lblWPrzygotowaniu").isVisible());
  QVERIFY(!program.widget<QFrame>("shpStatusBar").isVisible());
}

void ListSuite::theChoicesAreTheUsersVerbsAndTheLetters() {
  const ListUnderTest program({}, 0);
  auto& choices = program.widget<QComboBox>("cmbLista");
  QCOMPARE(choices.count(), 27);
  QCOMPARE(choices.itemText(0), "Wprowadzone przez użytkownika");
  for (int index = 1; index < 27; ++index)
    QCOMPARE(choices.itemText(index), QString(QChar(index + 96)));
  QVERIFY(!choices.isEditable());
}

void ListSuite::withoutAFileNothingIsEnabled() {
  const ListUnderTest program({}, 3);
  QCOMPARE(program.count(), "0/7342");
  QCOMPARE(program.enabled(), QStringList{"cmdNowy"});
  QVERIFY(!program.list().isEnabled());
}

void ListSuite::withCountZeroNothingIsListed() {
  const ListUnderTest program({"aimer"}, 0);
  QCOMPARE(program.count(), "0/7342");
  QCOMPARE(program.entries(), QStringList());
  QCOMPARE(program.enabled(), QStringList{"cmdNowy"});
  QVERIFY(!program.list().isEnabled());
}

void ListSuite::theListShowsEveryLineAndTheStoredCountEnables() {
  const ListUnderTest program({"finir", "aimer", "bâtir"}, 1);
  QCOMPARE(program.entries(), (QStringList{"finir", "aimer", "bâtir"}));
  QCOMPARE(program.count(), "3/7342");
  QCOMPARE(program.enabled().size(), 5);
  QVERIFY(program.list().isEnabled());
}

void ListSuite::theFirstVerbIsSelectedAtLoad() {
  const ListUnderTest program({"finir", "aimer"}, 2);
  QCOMPARE(program.selected(), "finir");
}

void ListSuite::aLetterIsListedInTheOrderOfTheIndex() {
  const ListUnderTest program({"zézayer"}, 1);
  program.choose(kLetterD);
  QCOMPARE(program.count(), "1026/7342");
  QCOMPARE(program.list().count(), dictionary::verbCount('d'));
  for (const int k : {1, 2, 500, 1026})
    QCOMPARE(program.list().item(k - 1)->text(),
             QString::fromLatin1(QByteArrayView(dictionary::verbOfLetter('d', k))));
  QCOMPARE(program.list().currentRow(), 0);
  QVERIFY(program.list().isVisible() && program.list().isEnabled());
  program.choose(0);
  QCOMPARE(program.entries(), QStringList{"zézayer"});
  QCOMPARE(program.selected(), "zézayer");
}

void ListSuite::aLetterWithoutVerbsLeavesAnEmptyList() {
  const ListUnderTest program({}, 0);
  program.choose(kLetterA);
  program.choose(kLetterX);
  QCOMPARE(program.count(), "0/7342");
  QCOMPARE(program.entries(), QStringList());
  QCOMPARE(program.enabled(), QStringList{"cmdNowy"});
  QVERIFY(!program.list().isEnabled());
}

// deliberate: cmdUsuń is not touched by the choice of a letter.
void ListSuite::deletingStaysAsTheUsersListSetIt() {
  const ListUnderTest without({}, 0);
  without.choose(kLetterA);
  QCOMPARE(without.enabled(), (QStringList{"cmdOdmień", "cmdEdytuj", "cmdNowy", "cmdDrukuj"}));
  const ListUnderTest with({"finir"}, 1);
  with.choose(kLetterX);
  QCOMPARE(with.enabled(), (QStringList{"cmdNowy", "cmdUsuń"}));
}

void ListSuite::theBarGrowsFromEmptyToFull() {
  const ListUnderTest program({}, 0);
  auto& bar = program.widget<QWidget>("shpNiebieska");
  auto& label = program.widget<QLabel>("lblWPrzygotowaniu");
  program.choose(kLetterA);  // the bar is left full
  std::vector<int> widths;
  bool isListSeen = false;
  const auto look = [&] {
    widths.push_back(bar.width());
    isListSeen = isListSeen || program.list().isVisible();
  };
  const WhenPainted beforeTheLoop(label, look);
  const WhenPainted inTheLoop(bar, look);
  program.choose(kLetterD);
  QVERIFY(widths.size() > 10);
  QCOMPARE(widths.front(), 0);
  QVERIFY(std::is_sorted(widths.begin(), widths.end()));
  QCOMPARE(widths.back(), program.widget<QFrame>("shpStatusBar").contentsRect().width());
  QVERIFY(!isListSeen);
  QVERIFY(program.list().isVisible() && !label.isVisible());
}

void ListSuite::whileALetterIsFilledNothingIsTaken() {
  ListUnderTest program({"finir"}, 1);
  bool isFilling = false;
  const WhenPainted bar(program.widget<QWidget>("shpNiebieska"), [&] {
    if (isFilling) return;
    isFilling = true;
    program.choose(kLetterA);
    program.press("cmdOdmień");
  });
  program.choose(kLetterD);
  QVERIFY(isFilling);
  QCOMPARE(program.list().count(), 1026);
  QCOMPARE(program.widget<QComboBox>("cmbLista").currentIndex(), kLetterD);
  QVERIFY(program.commands.diary.isEmpty());
}

void ListSuite::anEmptyListSaysWhatToDo() {
  const ListUnderTest program({}, 0);
  QVERIFY(program.hint().isVisible());
  QVERIFY(program.hint().isEnabled());
  QVERIFY2(program.hint().text().contains("„Nowy”"), qPrintable(program.hint().text()));
  QVERIFY(program.list().geometry().contains(program.hint().geometry()));
  const int width = program.hint().width();
  QVERIFY(program.hint().heightForWidth(width) <= program.hint().height());
}

void ListSuite::aLetterWithoutVerbsSaysSo() {
  const ListUnderTest program({"finir"}, 1);
  QVERIFY(!program.hint().isVisible());
  program.choose(kLetterX);
  QVERIFY(program.hint().isVisible());
  QCOMPARE(program.hint().text(), "W spisie nie ma czasowników na literę „x”.");
  program.choose(kLetterA);
  QVERIFY(!program.hint().isVisible());
}

void ListSuite::anEmptyListForDeletingSaysSo() {
  const ListUnderTest program({}, 0);
  program.window.showFor(app::ListPurpose::deletion);
  QVERIFY(program.hint().isVisible());
  QCOMPARE(program.hint().text(),
           "Nie masz jeszcze własnych czasowników, więc nie ma czego usuwać.");
  program.window.showFor(app::ListPurpose::list);
  QVERIFY(program.hint().text().contains("„Nowy”"));
}

void ListSuite::theHintGoesWithTheFirstVerb() {
  ListUnderTest program({}, 0);
  program.save("finir");
  QVERIFY(!program.hint().isVisible());
  program.press("cmdUsuń");
  QVERIFY(program.hint().isVisible());
}

void ListSuite::whatIsTypedWithoutAccentsIsShownInTheUpperThird() {
  const ListUnderTest program({}, 0);
  program.choose(kLetterE);
  program.list().setFocus();
  for (const int key : {Qt::Key_E, Qt::Key_T, Qt::Key_E, Qt::Key_I})
    QTest::keyClick(&program.list(), static_cast<Qt::Key>(key));
  QCOMPARE(program.selected(), "éteindre");
  const QRect place = program.list().visualItemRect(program.list().currentItem());
  QVERIFY(place.top() > 0);
  QVERIFY(place.bottom() < program.list().viewport()->height() / 3);
}

std::unique_ptr<QObject> listSuite() { return std::make_unique<ListSuite>(); }

}  // namespace odmiennik::window_test

#include "list_test.moc"
