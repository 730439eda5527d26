// SPDX-License-Identifier: GPL-3.0-or-later
// Finding in the help: in a page, in all pages, in the index, in the table of contents.
#include <QClipboard>
#include <QListWidget>
#include <QMimeData>
#include <QTabWidget>

#include "app/common/announcement.h"
#include "app/help/folded_text.h"
#include "app/help/help_finder.h"
#include "app/help/page_text.h"
#include "tests/window/help_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

namespace {

// What a screen reader is told while it lives; what was still to be said before is passed over.
class Heard {
 public:
  Heard() {
    app::announceTo([this](const QString& sentence) { sentences_ += sentence; });
    app::announce(kBegin);
    if (!QTest::qWaitFor([this] { return sentences_.join(' ').endsWith(kBegin); }))
      qFatal("nothing is heard");
    sentences_.clear();
  }
  Heard(const Heard&) = delete;
  Heard& operator=(const Heard&) = delete;
  ~Heard() { app::announceTo({}); }
  [[nodiscard]] const QStringList& sentences() const { return sentences_; }

 private:
  static constexpr QLatin1String kBegin{"Start"};
  QStringList sentences_;
};

}  // namespace

class HelpSearchSuite : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { skipWithoutHelpFile(); }
  void init();
  void cleanup() { help_.reset(); }

  void accentsCaseAndApostrophesFold();
  void aHitIsFoundAtItsPlaceInTheText();
  void aPageIsReadWithoutItsMarkUp();
  void aWordWithoutAccentsIsFoundInThePage();
  void anEndingTypedWithAnOrdinaryHyphenIsFound();
  void wordsTypedWithAnOrdinaryBlankAreFound();
  void whatIsCopiedHasOrdinaryHyphensAndBlanks();
  void theAnswerGoesWithThePage();
  void theAnswerDoesNotWidenTheWindow();
  void allPagesAreSearchedAndHitsListed();
  void aFoundPageOpensWithEveryHitMarked();
  void marksGoWithThePage();
  void pagesWithoutOneOfTheWordsAreNotListed();
  void aSearchWithoutResultSaysSo();
  void whileOneTypesOnlyTheLastAnswerIsSaid();
  void anAnswerThatNoLongerHoldsIsNotSaid();
  void aPageWithTheWordInItsTitleComesFirst();
  void theIndexHoldsEveryKeyword();
  void theIndexIsNarrowedByWhatIsTyped();
  void enterInTheIndexOpensThePage();
  void arrowKeysInTheContentsOpenPages();
  void keysBringThePanelsToTheFront();
  void f6GoesFromPartToPart();

 private:
  [[nodiscard]] QLineEdit& field(const char* name) const {
    return help_->widget<QLineEdit>(QString::fromUtf8(name));
  }
  void searchEverywhere(const QString& words) const { field("txtSzukajWszędzie").setText(words); }
  [[nodiscard]] QListWidget& found() const { return help_->widget<QListWidget>("lstZnalezione"); }
  [[nodiscard]] QListWidget& keywords() const { return help_->widget<QListWidget>("lstIndeks"); }
  [[nodiscard]] QStringList shownKeywords() const;

  std::unique_ptr<HelpUnderTest> help_;
};

void HelpSearchSuite::init() {
  help_ = std::make_unique<HelpUnderTest>();
  help_->viewer().open("strony\\PresentIndicatif.htm");
  QTRY_COMPARE(QApplication::activeWindow(), &help_->widget<QDialog>("frmPomoc"));
}

void HelpSearchSuite::accentsCaseAndApostrophesFold() {
  QCOMPARE(app::folded("Où L’ÊTRE").text, "ou l'etre");
  QCOMPARE(app::folded("cœur, Łódź, żółw").text, "coeur, lodz, zolw");
  QCOMPARE(app::folded(QString("a%1b%2c").arg(QChar(0x2011)).arg(QChar(QChar::Nbsp))).text,
           "a-b c");
  QCOMPARE(app::folded(QString("e%1t").arg(QChar(0x301))).text, "et");
}

void HelpSearchSuite::aHitIsFoundAtItsPlaceInTheText() {
  using Hits = std::vector<app::TextHit>;
  QCOMPARE(app::hitsOf(app::folded("sœur, cœur"), {"coeur"}), (Hits{{6, 4}}));
  QCOMPARE(app::hitsOf(app::folded("été et étai"), {"et", "ta"}), (Hits{{0, 2}, {4, 2}, {7, 2}}));
  QCOMPARE(app::hitsOf(app::folded("abc"), {"d", ""}), Hits{});
}

void HelpSearchSuite::aPageIsReadWithoutItsMarkUp() {
  const app::PageText page = app::pageText(
      "<html><head><title>d&#251; &amp; d</title></head><body><h1>A</h1>\n<p>on <b>a</b>\nmis &lt; "
      "&nieznane; &#0; AT&T</p></body>");
  QCOMPARE(page.title, "dû & d");
  QCOMPARE(page.text, "A on a mis < &nieznane; &#0; AT&T");
}

void HelpSearchSuite::aWordWithoutAccentsIsFoundInThePage() {
  QTest::keyClicks(&field("txtSzukaj"), "etre");
  QCOMPARE(help_->pages().textCursor().selectedText(), "être");
  field("txtSzukaj").clear();
  QTest::keyClicks(&field("txtSzukaj"), "CO WYRAZA");
  QCOMPARE(help_->pages().textCursor().selectedText(), "Co wyraża");
}

void HelpSearchSuite::anEndingTypedWithAnOrdinaryHyphenIsFound() {
  QTest::keyClicks(&field("txtSzukaj"), "-issent");
  QCOMPARE(help_->pages().textCursor().selectedText(), QChar(0x2011) + QString("issent"));
}

void HelpSearchSuite::wordsTypedWithAnOrdinaryBlankAreFound() {
  QTest::keyClicks(&field("txtSzukaj"), "i z");
  QVERIFY(help_->pages().textCursor().hasSelection());
  searchEverywhere("w czasie");
  QVERIFY(found().count() > 0);
}

void HelpSearchSuite::whatIsCopiedHasOrdinaryHyphensAndBlanks() {
  help_->pages().selectAll();
  QVERIFY(help_->pages().textCursor().selectedText().contains(QChar(0x2011)));
  help_->pages().copy();
  const QMimeData& copied = *QApplication::clipboard()->mimeData();
  for (const QString& text : {copied.text(), copied.html()}) {
    QVERIFY(text.contains("-issent"));
    QVERIFY(!text.contains(QChar(0x2011)) && !text.contains(QChar::Nbsp));
  }
}

void HelpSearchSuite::theAnswerGoesWithThePage() {
  QTest::keyClicks(&field("txtSzukaj"), "qqq");
  QCOMPARE(help_->label("lblWynik"), "Nie znaleziono.");
  QCOMPARE(field("txtSzukaj").accessibleDescription(), "Nie znaleziono.");
  help_->viewer().open("strony\\PasseSimple.htm");
  QCOMPARE(help_->label("lblWynik"), QString());
  QCOMPARE(field("txtSzukaj").accessibleDescription(), QString());
}

void HelpSearchSuite::theAnswerDoesNotWidenTheWindow() {
  auto& window = help_->widget<QDialog>("frmPomoc");
  window.resize(720, 540);
  QCoreApplication::processEvents();
  QCOMPARE(window.width(), 720);
  const int least = window.minimumSizeHint().width();
  QTest::keyClicks(&field("txtSzukaj"), "qqq");
  searchEverywhere("qqq");
  QCoreApplication::processEvents();
  QCOMPARE(window.width(), 720);
  QCOMPARE(window.minimumSizeHint().width(), least);
}

void HelpSearchSuite::allPagesAreSearchedAndHitsListed() {
  searchEverywhere("etre");
  QVERIFY(found().count() > 15);
  QVERIFY(help_->label("lblZnalezione").contains(QString::number(found().count())));
  for (int row = 0; row < found().count(); ++row) {
    const QStringList lines = found().item(row)->text().split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines[0].contains(QRegularExpression(" \\([1-9]\\d*\\)$")), qPrintable(lines[0]));
    QVERIFY2(app::folded(lines[1]).text.contains("etre"), qPrintable(lines[1]));
  }
}

void HelpSearchSuite::aFoundPageOpensWithEveryHitMarked() {
  searchEverywhere("Où");
  QTest::keyClick(&field("txtSzukajWszędzie"), Qt::Key_Down);
  const QString chosen = found().currentItem()->text().section('\n', 0, 0);
  QTest::keyClick(&field("txtSzukajWszędzie"), Qt::Key_Return);
  const auto marks = help_->pages().extraSelections();
  QVERIFY2(chosen.endsWith(QString(" (%1)").arg(marks.size())), qPrintable(chosen));
  for (const auto& mark : marks) QCOMPARE(app::folded(mark.cursor.selectedText()).text, "ou");
  QCOMPARE(help_->pages().textCursor().position(), marks.front().cursor.selectionStart());
  QVERIFY(help_->pages().hasFocus());
}

void HelpSearchSuite::marksGoWithThePage() {
  searchEverywhere("avoir");
  QTest::keyClick(&field("txtSzukajWszędzie"), Qt::Key_Return);
  QVERIFY(!help_->pages().extraSelections().isEmpty());
  help_->viewer().open("strony\\default.htm");
  QVERIFY(help_->pages().extraSelections().isEmpty());
}

void HelpSearchSuite::pagesWithoutOneOfTheWordsAreNotListed() {
  searchEverywhere("avoir");
  const int one = found().count();
  searchEverywhere("avoir falloir");
  QVERIFY(found().count() > 0 && found().count() < one);
  searchEverywhere("avoir qqq");
  QCOMPARE(found().count(), 0);
}

void HelpSearchSuite::aSearchWithoutResultSaysSo() {
  searchEverywhere("qqq");
  QCOMPARE(help_->label("lblZnalezione"), "Nie znaleziono.");
  searchEverywhere("  ");
  QCOMPARE(help_->label("lblZnalezione"), QString());
}

void HelpSearchSuite::whileOneTypesOnlyTheLastAnswerIsSaid() {
  const Heard heard;
  for (const char* words : {"p", "pr", "qqq"}) searchEverywhere(words);
  QTRY_COMPARE(heard.sentences(), QStringList{"Nie znaleziono."});
}

void HelpSearchSuite::anAnswerThatNoLongerHoldsIsNotSaid() {
  const Heard heard;
  QTest::keyClicks(&field("txtSzukaj"), "qqq");
  field("txtSzukaj").clear();
  QTest::keyClicks(&field("txtSzukaj"), "je");
  app::announce("Strona");
  QTRY_COMPARE(heard.sentences(), QStringList{"Strona"});
}

void HelpSearchSuite::aPageWithTheWordInItsTitleComesFirst() {
  searchEverywhere("drukowanie");
  QVERIFY(found().item(0)->text().startsWith("Drukowanie"));
}

QStringList HelpSearchSuite::shownKeywords() const {
  QStringList shown;
  for (int row = 0; row < keywords().count(); ++row)
    if (!keywords().item(row)->isHidden()) shown += keywords().item(row)->text();
  return shown;
}

void HelpSearchSuite::theIndexHoldsEveryKeyword() {
  QFile source(QStringLiteral(ODMIENNIK_SOURCE_DIR "/help/indeks.txt"));
  QVERIFY(source.open(QIODevice::ReadOnly));
  QStringList expected;
  for (const QString& line : QString::fromUtf8(source.readAll()).split('\n'))
    if (line.contains('|') && !line.startsWith('#')) expected += line.section('|', 0, 0).trimmed();
  QVERIFY(expected.size() >= 60);
  QCOMPARE(shownKeywords(), expected);
}

void HelpSearchSuite::theIndexIsNarrowedByWhatIsTyped() {
  field("txtHasło").setText("POSILK");
  QVERIFY(shownKeywords().contains("czasowniki posiłkowe"));
  for (const QString& keyword : shownKeywords()) QVERIFY(keyword.contains("posiłk"));
  field("txtHasło").clear();
  QVERIFY(shownKeywords().size() >= 60);
}

void HelpSearchSuite::enterInTheIndexOpensThePage() {
  field("txtHasło").setText("rozkaz");
  QTest::keyClick(&field("txtHasło"), Qt::Key_Return);
  QCOMPARE(help_->pages().source().path(), "/strony/PrésentImpératif.htm");
  QVERIFY(help_->pages().hasFocus());
  field("txtHasło").setText("qqq");
  QTest::keyClick(&field("txtHasło"), Qt::Key_Return);
  QCOMPARE(help_->pages().source().path(), "/strony/PrésentImpératif.htm");
}

void HelpSearchSuite::arrowKeysInTheContentsOpenPages() {
  help_->contents().setFocus();
  QCOMPARE(help_->contents().currentItem()->text(0), "Présent");
  const QString next = help_->contents().itemBelow(help_->contents().currentItem())->text(0);
  QTest::keyClick(&help_->contents(), Qt::Key_Down);
  QCOMPARE(help_->contents().currentItem()->text(0), next);
  QVERIFY(help_->pages().toPlainText().section('\n', 0, 0).contains(next, Qt::CaseInsensitive));
  QVERIFY(help_->contents().hasFocus());
  QTest::keyClick(&help_->contents(), Qt::Key_Return);
  QVERIFY(help_->pages().hasFocus());
}

void HelpSearchSuite::keysBringThePanelsToTheFront() {
  auto& panels = help_->widget<QTabWidget>("tabPomoc");
  QTest::keyClick(&help_->pages(), Qt::Key_I, Qt::ControlModifier);
  QCOMPARE(panels.currentIndex(), 1);
  QVERIFY(field("txtHasło").hasFocus());
  QTest::keyClick(&help_->pages(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  QCOMPARE(panels.currentIndex(), 2);
  QVERIFY(field("txtSzukajWszędzie").hasFocus());
  QTest::keyClick(&help_->pages(), Qt::Key_T, Qt::ControlModifier);
  QCOMPARE(panels.currentIndex(), 0);
  QVERIFY(help_->contents().hasFocus());
}

void HelpSearchSuite::f6GoesFromPartToPart() {
  help_->pages().setFocus();
  QTest::keyClick(&help_->pages(), Qt::Key_F6);
  QVERIFY(field("txtSzukaj").hasFocus());
  QTest::keyClick(&field("txtSzukaj"), Qt::Key_F6);
  QVERIFY(help_->contents().hasFocus());
  QTest::keyClick(&help_->contents(), Qt::Key_F6);
  QVERIFY(help_->pages().hasFocus());
  QTest::keyClick(&help_->pages(), Qt::Key_F6, Qt::ShiftModifier);
  QVERIFY(help_->contents().hasFocus());
}

std::unique_ptr<QObject> helpSearchSuite() { return std::make_unique<HelpSearchSuite>(); }

}  // namespace odmiennik::window_test

#include "help_search_test.moc"
