// SPDX-License-Identifier: GPL-3.0-or-later
// The help viewer on the help file that is built.
#include <QDialog>
#include <QPrinter>
#include <QTabWidget>
#include <QTextBlock>

#include "tests/window/help_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class HelpSuite : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { skipWithoutHelpFile(); }
  void init() { help_ = std::make_unique<HelpUnderTest>(); }
  void cleanup() { help_.reset(); }

  void theFileIsLookedForBesideTheProgramAndInTheSharedFolder();
  void theMenuOpensTheFirstPage();
  void everyPageOfTheHeadingsOpens_data();
  void everyPageOfTheHeadingsOpens();
  void aClickOnAHeadingShowsItsPage();
  void contextTwoIsThePageAboutConjugating();
  void anUnknownContextOpensTheFirstPage();
  void theContentsLeadToThePages();
  void theEntryOfTheShownPageIsChosen();
  void chaptersAreExpandedAndPagesAreNot();
  void everyEntryOfTheContentsLeadsToAPage();
  void linksLeadOnAndTheWayBackReturns();
  void searchingFindsTheWordAndBeginsAnewAtTheEnd();
  void searchingForWhatIsNotThereSaysSo();
  void thePageIsPrinted();
  void escapeHidesTheWindowAndItsPageStays();
  void everyControlHasANameAndNoAccessKeyTwice();

 private:
  std::unique_ptr<HelpUnderTest> help_;
};

void HelpSuite::theFileIsLookedForBesideTheProgramAndInTheSharedFolder() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString above = folder.section('/', 0, -2);
  QCOMPARE(app::helpFilePlaces(),
           (QStringList{folder + "/Werbolin.chm", above + "/share/odmiennik/Werbolin.chm"}));
}

// Wherever the focus is, though the item's key goes by it.
void HelpSuite::theMenuOpensTheFirstPage() {
  help_->box(0).setFocus();
  help_->item("mnuPomocTematy").trigger();
  QTRY_VERIFY(help_->window.findChild<QDialog*>("frmPomoc") != nullptr);
  QVERIFY(help_->widget<QDialog>("frmPomoc").isVisible());
  QCOMPARE(help_->pages().source(), QUrl("chm:/strony/default.htm"));
  QVERIFY(help_->pages().toPlainText().startsWith("Witaj w Odmienniku"));
}

void HelpSuite::everyPageOfTheHeadingsOpens_data() {
  QTest::addColumn<int>("heading");
  for (int i = 0; i < app::kTopicHeadings; ++i) QTest::addRow("%d", i) << i;
}

void HelpSuite::everyPageOfTheHeadingsOpens() {
  QFETCH(int, heading);
  help_->viewer().open(*app::topicOf(heading));
  QVERIFY(help_->pages().toPlainText().contains("Jak się tworzy"));
  QVERIFY(help_->contents().currentItem() != nullptr);
  QVERIFY(help_->pages().document()->begin().blockFormat().headingLevel() == 1);
}

void HelpSuite::aClickOnAHeadingShowsItsPage() {
  auto& label = help_->widget<QLabel>("lblCzas_7");
  QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), label.mapToGlobal(QPointF(3, 3)), Qt::NoButton,
                   Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&label, &move);
  QTest::mouseClick(&label, Qt::LeftButton);
  QVERIFY(help_->pages().toPlainText().startsWith("Passé simple"));
}

void HelpSuite::contextTwoIsThePageAboutConjugating() {
  help_->viewer().openContext(2);
  QCOMPARE(help_->pages().source(), QUrl("chm:/strony/JakOdmienic.htm"));
  QVERIFY(help_->pages().toPlainText().startsWith("Jak odmienić czasownik"));
}

void HelpSuite::anUnknownContextOpensTheFirstPage() {
  help_->viewer().openContext(77);
  QCOMPARE(help_->pages().source(), QUrl("chm:/strony/default.htm"));
}

void HelpSuite::theContentsLeadToThePages() {
  help_->viewer().open("strony\\default.htm");
  const auto found =
      help_->contents().findItems("Futur simple", Qt::MatchExactly | Qt::MatchRecursive);
  QCOMPARE(found.size(), 1);
  QCOMPARE(found.front()->parent()->text(0), "Indicatif");
  help_->contents().setCurrentItem(found.front());
  emit help_->contents().itemActivated(found.front(), 0);
  QCOMPARE(help_->pages().source().path(), "/strony/FuturSimple.htm");
}

void HelpSuite::theEntryOfTheShownPageIsChosen() {
  help_->viewer().open("strony\\PasséAntérieur.htm");
  QVERIFY(help_->contents().currentItem() != nullptr);
  QCOMPARE(help_->contents().currentItem()->text(0), "Passé antérieur");
  help_->viewer().openContext(2);
  QCOMPARE(help_->contents().currentItem()->text(0), "Jak odmienić czasownik");
}

// A screen reader says which entry is expanded.
void HelpSuite::chaptersAreExpandedAndPagesAreNot() {
  help_->viewer().open("strony\\default.htm");
  int chapters = 0;
  for (QTreeWidgetItemIterator entry(&help_->contents()); *entry != nullptr; ++entry) {
    QCOMPARE((*entry)->isExpanded(), (*entry)->childCount() > 0);
    chapters += (*entry)->childCount() > 0 ? 1 : 0;
  }
  QVERIFY(chapters > 5);
}

void HelpSuite::everyEntryOfTheContentsLeadsToAPage() {
  help_->viewer().open("strony\\default.htm");
  int entries = 0;
  for (QTreeWidgetItemIterator entry(&help_->contents()); *entry != nullptr; ++entry, ++entries) {
    emit help_->contents().itemActivated(*entry, 0);
    QVERIFY2(!help_->pages().toPlainText().startsWith("Nie "), qPrintable((*entry)->text(0)));
  }
  QVERIFY(entries >= 27);
}

void HelpSuite::linksLeadOnAndTheWayBackReturns() {
  help_->viewer().open("strony\\default.htm");
  QVERIFY(!help_->widget<QPushButton>("cmdDalej").isEnabled());
  help_->follow("Passé antérieur");
  QCOMPARE(help_->pages().source().path(), "/strony/PasséAntérieur.htm");
  QVERIFY(help_->pages().toPlainText().startsWith("Passé antérieur"));
  help_->press("cmdWstecz");
  QCOMPARE(help_->pages().source().path(), "/strony/default.htm");
  help_->press("cmdDalej");
  QCOMPARE(help_->pages().source().path(), "/strony/PasséAntérieur.htm");
  help_->press("cmdPoczątek");
  QCOMPARE(help_->pages().source().path(), "/strony/default.htm");
}

void HelpSuite::searchingFindsTheWordAndBeginsAnewAtTheEnd() {
  help_->viewer().open("strony\\PasseCompose.htm");
  auto& field = help_->widget<QLineEdit>("txtSzukaj");
  QTest::keyClicks(&field, "imparfait");
  QCOMPARE(help_->pages().textCursor().selectedText().toLower(), "imparfait");
  const int first = help_->pages().textCursor().selectionStart();
  int found = 1;
  for (help_->press("cmdNastępne"); help_->pages().textCursor().selectionStart() != first;
       help_->press("cmdNastępne"))
    QVERIFY(++found < 100);
  QVERIFY(found > 2);
  help_->press("cmdPoprzednie");
  QVERIFY(help_->pages().textCursor().selectionStart() > first);
  QCOMPARE(help_->label("lblWynik"), QString());
}

void HelpSuite::searchingForWhatIsNotThereSaysSo() {
  help_->viewer().open("strony\\PasseCompose.htm");
  auto& field = help_->widget<QLineEdit>("txtSzukaj");
  QTest::keyClicks(&field, "qqq");
  QCOMPARE(help_->label("lblWynik"), "Nie znaleziono.");
  field.clear();
  QTest::keyClicks(&field, "imparfait");
  QCOMPARE(help_->label("lblWynik"), QString());
}

void HelpSuite::thePageIsPrinted() {
  help_->viewer().open("strony\\PasseCompose.htm");
  const QString file = QString::fromStdString((help_->folder.path() / "strona.pdf").string());
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(file);
  help_->widget<app::HelpWindow>("frmPomoc").printTo(printer);
  QFile printed(file);
  QVERIFY(printed.open(QIODevice::ReadOnly));
  QVERIFY(printed.read(5) == "%PDF-" && printed.size() > 5000);
}

void HelpSuite::escapeHidesTheWindowAndItsPageStays() {
  help_->viewer().open("strony\\PasseSimple.htm");
  auto& window = help_->widget<QDialog>("frmPomoc");
  QTest::keyClick(&window, Qt::Key_Escape);
  QVERIFY(!window.isVisible());
  QVERIFY(help_->window.isVisible());
  QCOMPARE(help_->pages().source().path(), "/strony/PasseSimple.htm");
}

void HelpSuite::everyControlHasANameAndNoAccessKeyTwice() {
  help_->viewer().open("strony\\default.htm");
  const auto& window = help_->widget<QDialog>("frmPomoc");
  QSet<QChar> keys;
  QStringList captions;
  for (const QPushButton* button : window.findChildren<QPushButton*>()) {
    QVERIFY(!button->objectName().isEmpty());
    captions += button->text();
  }
  for (const QLabel* label : window.findChildren<QLabel*>())
    if (label->buddy() != nullptr) captions += label->text();
  const auto& panels = help_->widget<QTabWidget>("tabPomoc");
  for (int i = 0; i < panels.count(); ++i) captions += panels.tabText(i);
  for (const QString& caption : captions) keys += caption.section('&', 1).at(0).toLower();
  QCOMPARE(captions.size(), 10);
  QCOMPARE(keys.size(), captions.size());
  for (const QWidget* widget : window.findChildren<QWidget*>())
    if (widget->objectName().startsWith("txt") || widget->objectName().startsWith("lst") ||
        widget->objectName().startsWith("tre"))
      QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
}

std::unique_ptr<QObject> helpSuite() { return std::make_unique<HelpSuite>(); }

}  // namespace odmiennik::window_test

#include "help_test.moc"
