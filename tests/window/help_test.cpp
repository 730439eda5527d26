// The help viewer on the help file that is built, and without one.
#include <QFile>
#include <QPrinter>
#include <QSplitter>
#include <QTextBlock>

#include "app/help/help_viewer.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class HelpSuite : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void init();
  void cleanup() { program_.reset(); }

  void theFileIsLookedForBesideTheProgramAndInTheSharedFolder();
  void theMenuOpensTheFirstPage();
  void everyPageOfTheHeadingsOpens_data();
  void everyPageOfTheHeadingsOpens();
  void aClickOnAHeadingShowsItsPage();
  void f1InAFormBoxOpensThePageOfItsTense_data();
  void f1InAFormBoxOpensThePageOfItsTense();
  void contextTwoIsThePageAboutConjugating();
  void anUnknownContextOpensTheFirstPage();
  void theContentsLeadToThePages();
  void theEntryOfTheShownPageIsChosen();
  void everyEntryOfTheContentsLeadsToAPage();
  void linksLeadOnAndTheWayBackReturns();
  void searchingFindsTheWordAndBeginsAnewAtTheEnd();
  void searchingForWhatIsNotThereSaysSo();
  void thePageIsPrinted();
  void escapeHidesTheWindowAndItsPageStays();
  void thePageIsLightInADarkTheme();
  void aMissingFileIsToldInPolish();
  void aDamagedFileIsToldInPolish();
  void aMissingPageIsToldInPolish();
  void aFileThatComesLaterIsOpened();
  void everyControlHasANameAndNoAccessKeyTwice();

 private:
  [[nodiscard]] QTextBrowser& pages() const { return program_->widget<QTextBrowser>("txtStrona"); }
  [[nodiscard]] QTreeWidget& contents() const { return program_->widget<QTreeWidget>("treSpis"); }
  [[nodiscard]] app::HelpViewer& viewer() const {
    return program_->widget<app::HelpViewer>("Hhopen1");
  }
  void press(const char* button) const {
    program_->widget<QPushButton>(QString::fromUtf8(button)).click();
  }
  // Clicks on the first place of the page that reads `link`.
  void follow(const QString& link) const {
    QTextCursor place = pages().document()->find(link);
    place.setPosition(place.selectionStart() + 1);
    pages().setTextCursor(place);
    QTest::mouseClick(pages().viewport(), Qt::LeftButton, {}, pages().cursorRect().center());
  }

  std::unique_ptr<ProgramUnderTest> program_;
};

void HelpSuite::initTestCase() {
  if (!QFile::exists(app::helpFilePlaces().front()))
    QSKIP("the help file is not built here: chmcmd (package fp-utils) is missing");
}

void HelpSuite::init() { program_ = std::make_unique<ProgramUnderTest>(); }

void HelpSuite::theFileIsLookedForBesideTheProgramAndInTheSharedFolder() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString above = folder.section('/', 0, -2);
  QCOMPARE(app::helpFilePlaces(),
           (QStringList{folder + "/Werbolin.chm", above + "/share/odmiennik/Werbolin.chm"}));
}

void HelpSuite::theMenuOpensTheFirstPage() {
  program_->item("mnuPomocTematy").trigger();
  QTRY_VERIFY(program_->window.findChild<QDialog*>("frmPomoc") != nullptr);
  QVERIFY(program_->widget<QDialog>("frmPomoc").isVisible());
  QCOMPARE(pages().source(), QUrl("chm:/strony/default.htm"));
  QVERIFY(pages().toPlainText().startsWith("Witaj w Odmienniku"));
}

void HelpSuite::everyPageOfTheHeadingsOpens_data() {
  QTest::addColumn<int>("heading");
  for (int i = 0; i < app::kTopicHeadings; ++i) QTest::addRow("%d", i) << i;
}

void HelpSuite::everyPageOfTheHeadingsOpens() {
  QFETCH(int, heading);
  viewer().open(*app::topicOf(heading));
  QVERIFY(pages().toPlainText().contains("Jak się tworzy"));
  QVERIFY(contents().currentItem() != nullptr);
  QVERIFY(pages().document()->begin().blockFormat().headingLevel() == 1);
}

void HelpSuite::aClickOnAHeadingShowsItsPage() {
  auto& label = program_->widget<QLabel>("lblCzas_7");
  QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), label.mapToGlobal(QPointF(3, 3)), Qt::NoButton,
                   Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&label, &move);
  QTest::mouseClick(&label, Qt::LeftButton);
  QVERIFY(pages().toPlainText().startsWith("Passé simple"));
}

void HelpSuite::f1InAFormBoxOpensThePageOfItsTense_data() {
  QTest::addColumn<int>("slot");
  QTest::addColumn<QString>("page");
  QTest::newRow("indicatif présent") << 5 << "PresentIndicatif";
  QTest::newRow("passé antérieur") << 36 << "PasséAntérieur";
  QTest::newRow("conditionnel passé 2") << 89 << "ConditionnelPassé2";
  QTest::newRow("impératif présent") << 91 << "PrésentImpératif";
  QTest::newRow("entry box") << 96 << "default";
  QTest::newRow("participe") << 98 << "default";
}

void HelpSuite::f1InAFormBoxOpensThePageOfItsTense() {
  QFETCH(int, slot);
  QFETCH(QString, page);
  program_->box(slot).setFocus();
  QTest::keyClick(&program_->box(slot), Qt::Key_F1);
  QCOMPARE(pages().source().path(), "/strony/" + page + ".htm");
  QVERIFY(program_->messages.shown.empty());
}

void HelpSuite::contextTwoIsThePageAboutConjugating() {
  viewer().openContext(2);
  QCOMPARE(pages().source(), QUrl("chm:/strony/JakOdmienic.htm"));
  QVERIFY(pages().toPlainText().startsWith("Jak odmienić czasownik"));
}

void HelpSuite::anUnknownContextOpensTheFirstPage() {
  viewer().openContext(77);
  QCOMPARE(pages().source(), QUrl("chm:/strony/default.htm"));
}

void HelpSuite::theContentsLeadToThePages() {
  viewer().open("strony\\default.htm");
  const auto found = contents().findItems("Futur simple", Qt::MatchExactly | Qt::MatchRecursive);
  QCOMPARE(found.size(), 1);
  QCOMPARE(found.front()->parent()->text(0), "Indicatif");
  contents().setCurrentItem(found.front());
  emit contents().itemActivated(found.front(), 0);
  QCOMPARE(pages().source().path(), "/strony/FuturSimple.htm");
}

void HelpSuite::theEntryOfTheShownPageIsChosen() {
  viewer().open("strony\\PasséAntérieur.htm");
  QVERIFY(contents().currentItem() != nullptr);
  QCOMPARE(contents().currentItem()->text(0), "Passé antérieur");
  viewer().openContext(2);
  QCOMPARE(contents().currentItem()->text(0), "Jak odmienić czasownik");
}

void HelpSuite::everyEntryOfTheContentsLeadsToAPage() {
  viewer().open("strony\\default.htm");
  int entries = 0;
  for (QTreeWidgetItemIterator entry(&contents()); *entry != nullptr; ++entry, ++entries) {
    emit contents().itemActivated(*entry, 0);
    QVERIFY2(!pages().toPlainText().startsWith("Nie "), qPrintable((*entry)->text(0)));
  }
  QVERIFY(entries >= 27);
}

void HelpSuite::linksLeadOnAndTheWayBackReturns() {
  viewer().open("strony\\default.htm");
  QVERIFY(!program_->widget<QPushButton>("cmdDalej").isEnabled());
  follow("Passé antérieur");
  QCOMPARE(pages().source().path(), "/strony/PasséAntérieur.htm");
  QVERIFY(pages().toPlainText().startsWith("Passé antérieur"));
  press("cmdWstecz");
  QCOMPARE(pages().source().path(), "/strony/default.htm");
  press("cmdDalej");
  QCOMPARE(pages().source().path(), "/strony/PasséAntérieur.htm");
  press("cmdPoczątek");
  QCOMPARE(pages().source().path(), "/strony/default.htm");
}

void HelpSuite::searchingFindsTheWordAndBeginsAnewAtTheEnd() {
  viewer().open("strony\\PasseCompose.htm");
  auto& field = program_->widget<QLineEdit>("txtSzukaj");
  QTest::keyClicks(&field, "imparfait");
  QCOMPARE(pages().textCursor().selectedText().toLower(), "imparfait");
  const int first = pages().textCursor().selectionStart();
  int found = 1;
  for (press("cmdNastępne"); pages().textCursor().selectionStart() != first; press("cmdNastępne"))
    QVERIFY(++found < 100);
  QVERIFY(found > 2);
  press("cmdPoprzednie");
  QVERIFY(pages().textCursor().selectionStart() > first);
  QCOMPARE(program_->label("lblWynik"), QString());
}

void HelpSuite::searchingForWhatIsNotThereSaysSo() {
  viewer().open("strony\\PasseCompose.htm");
  auto& field = program_->widget<QLineEdit>("txtSzukaj");
  QTest::keyClicks(&field, "qqq");
  QCOMPARE(program_->label("lblWynik"), "Nie znaleziono.");
  field.clear();
  QTest::keyClicks(&field, "imparfait");
  QCOMPARE(program_->label("lblWynik"), QString());
}

void HelpSuite::thePageIsPrinted() {
  viewer().open("strony\\PasseCompose.htm");
  const QString file = QString::fromStdString((program_->folder.path() / "strona.pdf").string());
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(file);
  program_->widget<app::HelpWindow>("frmPomoc").printTo(printer);
  QFile printed(file);
  QVERIFY(printed.open(QIODevice::ReadOnly));
  QVERIFY(printed.read(5) == "%PDF-" && printed.size() > 5000);
}

void HelpSuite::escapeHidesTheWindowAndItsPageStays() {
  viewer().open("strony\\PasseSimple.htm");
  auto& window = program_->widget<QDialog>("frmPomoc");
  QTest::keyClick(&window, Qt::Key_Escape);
  QVERIFY(!window.isVisible());
  QVERIFY(program_->window.isVisible());
  QCOMPARE(pages().source().path(), "/strony/PasseSimple.htm");
}

void HelpSuite::thePageIsLightInADarkTheme() {
  const QPalette light = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2D, 0x2D, 0x2D)));
  viewer().open("strony\\default.htm");
  const QImage page = pages().viewport()->grab().toImage();
  const QColor text = pages().palette().color(QPalette::Text);
  QApplication::setPalette(light);
  QCOMPARE(page.pixelColor(3, page.height() - 3), QColor(Qt::white));
  QVERIFY(text.lightness() < 80);
}

void HelpSuite::aMissingFileIsToldInPolish() {
  viewer().lookIn({"/nie/ma/Werbolin.chm"});
  viewer().open("strony\\default.htm");
  QVERIFY(pages().toPlainText().startsWith("Nie znaleziono pliku pomocy"));
  QVERIFY(pages().toPlainText().contains("Werbolin.chm"));
  QCOMPARE(contents().topLevelItemCount(), 0);
}

void HelpSuite::aDamagedFileIsToldInPolish() {
  QFile whole(app::helpFilePlaces().front());
  QVERIFY(whole.open(QIODevice::ReadOnly));
  QFile damaged(QString::fromStdString((program_->folder.path() / "Werbolin.chm").string()));
  for (const QByteArray& bytes : {QByteArray(), QByteArray("Werbolin"), whole.read(300),
                                  whole.read(5000).replace("PMG", "XXX")}) {
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write(bytes) == bytes.size());
    damaged.close();
    viewer().lookIn({damaged.fileName()});
    viewer().open("strony\\default.htm");
    QVERIFY(pages().toPlainText().startsWith("Plik pomocy jest uszkodzony"));
  }
}

void HelpSuite::aMissingPageIsToldInPolish() {
  viewer().open("strony\\Nie<b>ma.htm");
  QVERIFY(pages().toPlainText().startsWith("Nie znaleziono strony"));
  QVERIFY(pages().toPlainText().contains("„Nie<b>ma.htm”"));
  viewer().open("strony\\default.htm");
  QVERIFY(pages().toPlainText().startsWith("Witaj w Odmienniku"));
}

void HelpSuite::aFileThatComesLaterIsOpened() {
  const QString place = QString::fromStdString((program_->folder.path() / "W.chm").string());
  viewer().lookIn({place});
  viewer().open("strony\\default.htm");
  QVERIFY(pages().toPlainText().startsWith("Nie znaleziono pliku pomocy"));
  QVERIFY(QFile::copy(app::helpFilePlaces().front(), place));
  viewer().open("strony\\default.htm");
  QVERIFY(pages().toPlainText().startsWith("Witaj w Odmienniku"));
  QVERIFY(contents().topLevelItemCount() > 5);
}

void HelpSuite::everyControlHasANameAndNoAccessKeyTwice() {
  viewer().open("strony\\default.htm");
  const auto& window = program_->widget<QDialog>("frmPomoc");
  QSet<QChar> keys;
  QStringList captions;
  for (const QPushButton* button : window.findChildren<QPushButton*>()) {
    QVERIFY(!button->objectName().isEmpty());
    captions += button->text();
  }
  for (const QLabel* label : window.findChildren<QLabel*>())
    if (label->buddy() != nullptr) captions += label->text();
  for (const QString& caption : captions) keys += caption.section('&', 1).at(0).toLower();
  QCOMPARE(captions.size(), 7);
  QCOMPARE(keys.size(), captions.size());
  for (const QWidget* widget : std::initializer_list<QWidget*>{&pages(), &contents()})
    QVERIFY(!widget->accessibleName().isEmpty());
}

std::unique_ptr<QObject> helpSuite() { return std::make_unique<HelpSuite>(); }

}  // namespace odmiennik::window_test

#include "help_test.moc"
