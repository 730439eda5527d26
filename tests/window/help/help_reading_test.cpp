// SPDX-License-Identifier: GPL-3.0-or-later
// Reading a page of the help: with the keyboard, larger, in the dark.
#include <QClipboard>
#include <QFontInfo>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTextTable>
#include <QToolTip>

#include "app/common/announcement.h"
#include "app/help/help_browser.h"
#include "app/help/help_sheet.h"
#include "app/help/help_zoom.h"
#include "tests/window/help_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class HelpReadingSuite : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { skipWithoutHelpFile(); }
  void init();
  void cleanup();

  void arrowKeysMoveACaretFromLineToLine();
  void textIsSelectedByKeyboard();
  void pageDownStillTurnsThePage();
  void tabLeadsFromLinkToLink();
  void enterOpensTheLinkUnderTheCaret();
  void aPageBeginsAtItsTop();
  void thePageSaysItsTitle();
  void theLinkThatTabLeadsToIsTold();
  void thePageHasTheFontOfTheWindow();
  void sizesGoUpAndDownAndStayInTheirLimits();
  void keysMakeThePageLargerAndSmaller();
  void theWheelMakesThePageLargerOnlyWithCtrl();
  void theSizeIsKeptForTheNextTime();
  void aDamagedSizeInTheStoreIsPassedOver();
  void theLineThatIsReadStaysInSight();
  void thePageFollowsADarkTheme();
  void theOpenPageFollowsAChangeOfTheTheme();
  void noWordInATableIsBroken();
  void aPictureStandsOnThePageInItsSize();
  void aPictureGrowsWithThePage();
  void aPictureIsNeverWiderThanTheView();
  void aFormUnderThePointerShowsNoMarkOfItsMaker();

 private:
  [[nodiscard]] QTextBrowser& pages() const { return help_->pages(); }
  [[nodiscard]] double headingSize() const {
    return pages().document()->begin().begin().fragment().charFormat().font().pointSizeF();
  }
  void turnWheel(int angle, Qt::KeyboardModifiers modifiers) const;

  std::unique_ptr<HelpUnderTest> help_;
  QPalette light_;
};

void HelpReadingSuite::init() {
  light_ = QApplication::palette();
  help_ = std::make_unique<HelpUnderTest>();
  help_->viewer().open("strony\\PasseCompose.htm");
  QTRY_COMPARE(QApplication::activeWindow(), &help_->widget<QDialog>("frmPomoc"));
  pages().setFocus();
}

void HelpReadingSuite::cleanup() {
  help_.reset();
  QApplication::setPalette(light_);
}

void HelpReadingSuite::arrowKeysMoveACaretFromLineToLine() {
  QCOMPARE(pages().textCursor().position(), 0);
  const int first = pages().cursorRect().top();
  QTest::keyClick(&pages(), Qt::Key_Down);
  QVERIFY(pages().cursorRect().top() > first);
  QTest::keyClick(&pages(), Qt::Key_End);
  QVERIFY(!pages().textCursor().atBlockStart());
  QTest::keyClick(&pages(), Qt::Key_Up);
  QCOMPARE(pages().textCursor().blockNumber(), 0);
}

void HelpReadingSuite::textIsSelectedByKeyboard() {
  QTest::keyClick(&pages(), Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
  QCOMPARE(pages().textCursor().selectedText().trimmed(), "Passé");
  QTest::keyClick(&pages(), Qt::Key_C, Qt::ControlModifier);
  QCOMPARE(QApplication::clipboard()->text().trimmed(), "Passé");
}

void HelpReadingSuite::pageDownStillTurnsThePage() {
  QTest::keyClick(&pages(), Qt::Key_PageDown);
  const int scrolled = pages().verticalScrollBar()->value();
  QVERIFY(scrolled > pages().viewport()->height() / 2);
  QVERIFY(pages().rect().contains(pages().cursorRect().center()));
  QTest::keyClick(&pages(), Qt::Key_PageUp);
  QVERIFY(pages().verticalScrollBar()->value() < scrolled);
  QTest::keyClick(&pages(), Qt::Key_End, Qt::ControlModifier);
  QVERIFY(pages().verticalScrollBar()->maximum() - pages().verticalScrollBar()->value() < 20);
}

void HelpReadingSuite::thePageHasTheFontOfTheWindow() {
  QTextCursor place = pages().document()->find("podstawowy");
  QVERIFY(!place.isNull());
  QCOMPARE(QFontInfo(place.charFormat().font()).family(), QFontInfo(pages().font()).family());
}

void HelpReadingSuite::tabLeadsFromLinkToLink() {
  help_->viewer().open("strony\\default.htm");
  pages().setFocus();
  QTest::keyClick(&pages(), Qt::Key_Tab);
  const QString first = pages().textCursor().selectedText();
  QVERIFY(!first.isEmpty());
  QTest::keyClick(&pages(), Qt::Key_Tab);
  QVERIFY(pages().textCursor().selectedText() != first);
  QTest::keyClick(&pages(), Qt::Key_Backtab, Qt::ShiftModifier);
  QCOMPARE(pages().textCursor().selectedText(), first);
  QTest::keyClick(&pages(), Qt::Key_Return);
  QVERIFY(pages().source().path() != "/strony/default.htm");
}

// As it would be typed: blanks and hyphens that hold a line together have no sound.
void HelpReadingSuite::theLinkThatTabLeadsToIsTold() {
  QStringList told;
  app::announceTo([&told](const QString& sentence) { told += sentence; });
  const auto silent = qScopeGuard([] { app::announceTo({}); });
  help_->viewer().open("strony\\default.htm");
  QTRY_VERIFY(!told.isEmpty() && told.last().endsWith("Witaj w Odmienniku"));
  told.clear();
  pages().setFocus();
  for (int links = 1; links <= 6; ++links) {
    QTest::keyClick(&pages(), Qt::Key_Tab);
    QTRY_COMPARE(told.size(), links);
  }
  QCOMPARE(told[0], "Odsyłacz: Jak odmienić czasownik");
  QCOMPARE(told[5], "Odsyłacz: Litery, menu Edycja i wygląd okna");
}

void HelpReadingSuite::enterOpensTheLinkUnderTheCaret() {
  help_->viewer().open("strony\\default.htm");
  QTextCursor place = pages().document()->find("Passé antérieur");
  place.setPosition(place.selectionStart() + 2);
  pages().setTextCursor(place);
  QTest::keyClick(&pages(), Qt::Key_Return);
  QCOMPARE(pages().source().path(), "/strony/PasséAntérieur.htm");
}

void HelpReadingSuite::aPageBeginsAtItsTop() {
  QTest::keyClick(&pages(), Qt::Key_End, Qt::ControlModifier);
  help_->viewer().open("strony\\PasseSimple.htm");
  QCOMPARE(pages().textCursor().position(), 0);
  QCOMPARE(pages().verticalScrollBar()->value(), 0);
}

void HelpReadingSuite::thePageSaysItsTitle() {
  QVERIFY(pages().accessibleDescription().startsWith("Passé composé"));
  help_->viewer().open("strony\\PasseSimple.htm");
  QVERIFY(pages().accessibleDescription().startsWith("Passé simple"));
  help_->viewer().open("strony\\default.htm");
  QCOMPARE(pages().accessibleDescription(), "Witaj w Odmienniku");
}

void HelpReadingSuite::sizesGoUpAndDownAndStayInTheirLimits() {
  QCOMPARE(app::nextZoom(100, 1), 110);
  QCOMPARE(app::nextZoom(100, -1), 90);
  QCOMPARE(app::nextZoom(300, 1), 300);
  QCOMPARE(app::nextZoom(50, -1), 50);
  QCOMPARE(app::allowedZoom(-7), 50);
  QCOMPARE(app::allowedZoom(2'000'000'000), 300);
  QCOMPARE(app::sheetAt("p { font-size: 10pt; margin: 3px }", 150),
           "p { font-size: 15.00pt; margin: 3px }");
}

void HelpReadingSuite::keysMakeThePageLargerAndSmaller() {
  const double normal = headingSize();
  QVERIFY(normal > 12);
  QTest::keyClick(&pages(), Qt::Key_Plus, Qt::ControlModifier);
  QCOMPARE(headingSize(), normal * 1.1);
  QTest::keyClick(&pages(), Qt::Key_Equal, Qt::ControlModifier);
  QCOMPARE(headingSize(), normal * 1.25);
  for (int i = 0; i < 3; ++i) QTest::keyClick(&pages(), Qt::Key_Minus, Qt::ControlModifier);
  QCOMPARE(headingSize(), normal * 0.9);
  QTest::keyClick(&pages(), Qt::Key_0, Qt::ControlModifier);
  QCOMPARE(headingSize(), normal);
}

void HelpReadingSuite::turnWheel(int angle, Qt::KeyboardModifiers modifiers) const {
  QWidget& view = *pages().viewport();
  QWheelEvent event(QPointF(20, 20), view.mapToGlobal(QPointF(20, 20)), {}, {0, angle},
                    Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&view, &event);
}

void HelpReadingSuite::theWheelMakesThePageLargerOnlyWithCtrl() {
  const double normal = headingSize();
  turnWheel(120, Qt::ControlModifier);
  QCOMPARE(headingSize(), normal * 1.1);
  turnWheel(-120, Qt::ControlModifier);
  turnWheel(-120, Qt::NoModifier);
  QCOMPARE(headingSize(), normal);
  QVERIFY(pages().verticalScrollBar()->value() > 0);
}

void HelpReadingSuite::theSizeIsKeptForTheNextTime() {
  QTest::keyClick(&pages(), Qt::Key_Plus, Qt::ControlModifier);
  QCOMPARE(help_->store.helpZoom(), 110);
  app::HelpBook book(app::helpFilePlaces());
  app::HelpWindow next(book, help_->store, nullptr);
  QCOMPARE(next.findChild<app::HelpBrowser*>()->zoom(), 110);
}

void HelpReadingSuite::aDamagedSizeInTheStoreIsPassedOver() {
  help_->store.setHelpZoom(-5);
  app::HelpBook book(app::helpFilePlaces());
  app::HelpWindow next(book, help_->store, nullptr);
  QCOMPARE(next.findChild<app::HelpBrowser*>()->zoom(), 50);
}

void HelpReadingSuite::theLineThatIsReadStaysInSight() {
  QTextCursor place = pages().document()->find("Typowe błędy");
  place.setPosition(place.selectionStart());
  pages().setTextCursor(place);
  QTest::keyClick(&pages(), Qt::Key_Plus, Qt::ControlModifier);
  QTest::keyClick(&pages(), Qt::Key_Plus, Qt::ControlModifier);
  QCOMPARE(pages().textCursor().block().text(), "Typowe błędy");
  QVERIFY(pages().verticalScrollBar()->value() > 100);
}

void HelpReadingSuite::thePageFollowsADarkTheme() {
  help_.reset();
  QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2D, 0x2D, 0x2D)));
  help_ = std::make_unique<HelpUnderTest>();
  help_->viewer().open("strony\\PresentIndicatif.htm");
  const QImage page = pages().viewport()->grab().toImage();
  QVERIFY(page.pixelColor(3, page.height() - 3).lightness() < 60);
  const QTextCharFormat heading = pages().document()->begin().begin().fragment().charFormat();
  QVERIFY(heading.foreground().color().lightness() > 150);
  QTextCursor text = pages().document()->find("odpowiada");
  QVERIFY(text.charFormat().foreground().color().lightness() > 150);
}

void HelpReadingSuite::theOpenPageFollowsAChangeOfTheTheme() {
  QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2D, 0x2D, 0x2D)));
  QTRY_VERIFY(pages().viewport()->grab().toImage().pixelColor(3, 3).lightness() < 60);
  QApplication::setPalette(light_);
  QTRY_VERIFY(pages().viewport()->grab().toImage().pixelColor(3, 3).lightness() > 240);
}

// In the narrowest window: the page is rather wider than the window.
void HelpReadingSuite::noWordInATableIsBroken() {
  auto& window = help_->widget<QDialog>("frmPomoc");
  window.resize(window.minimumSizeHint());
  for (int i = 0; i < 6; ++i) QTest::keyClick(&pages(), Qt::Key_Plus, Qt::ControlModifier);
  QCoreApplication::processEvents();
  int lines = 0;
  for (QTextBlock block = pages().document()->begin(); block.isValid(); block = block.next()) {
    const bool isInTable = QTextCursor(block).currentTable() != nullptr;
    const QTextLayout& layout = *block.layout();
    for (int i = 1; isInTable && i < layout.lineCount(); ++i, ++lines) {
      const QChar last = block.text().at(layout.lineAt(i).textStart() - 1);
      QVERIFY2(last == ' ', qPrintable(block.text()));
    }
  }
  QVERIFY(lines > 10);
}

// The pages' sources name the engine's slot beside each form, for the tests.
void HelpReadingSuite::aFormUnderThePointerShowsNoMarkOfItsMaker() {
  const QTextCursor form = pages().document()->find("j'ai parlé");
  QVERIFY(!form.isNull());
  pages().setTextCursor(form);
  const QPoint place = pages().cursorRect().center() - QPoint(4, 0);
  QHelpEvent event(QEvent::ToolTip, place, pages().viewport()->mapToGlobal(place));
  QCoreApplication::sendEvent(pages().viewport(), &event);
  QCOMPARE(QToolTip::text(), "");
}

// The pictures of the page as they are laid out.
QList<QSize> picturesOf(QTextBrowser& pages) {
  QList<QSize> sizes;
  for (QTextCursor place(pages.document()); !place.atEnd();
       place.movePosition(QTextCursor::Right)) {
    const QTextImageFormat picture = place.charFormat().toImageFormat();
    if (!picture.isValid() || place.atBlockStart()) continue;
    const QUrl name = pages.source().resolved(QUrl(picture.name()));
    sizes += pages.document()->resource(QTextDocument::ImageResource, name).value<QImage>().size();
  }
  return sizes;
}

void HelpReadingSuite::aPictureStandsOnThePageInItsSize() {
  help_->viewer().open("strony\\OdFormy.htm");
  QTRY_COMPARE(pages().source().fileName(), "OdFormy.htm");
  help_->widget<QDialog>("frmPomoc").resize(1400, 800);
  const QList<QSize> sizes = picturesOf(pages());
  QCOMPARE(sizes.size(), 2);
  QCOMPARE(sizes.front(), QSize(422, 215));
  QVERIFY(pages().document()->idealWidth() >= 422);
}

void HelpReadingSuite::aPictureGrowsWithThePage() {
  help_->viewer().open("strony\\OdFormy.htm");
  QTRY_COMPARE(pages().source().fileName(), "OdFormy.htm");
  help_->widget<QDialog>("frmPomoc").resize(1400, 800);
  const int height = pages().document()->size().toSize().height();
  help_->window.findChild<app::HelpBrowser*>()->setZoom(200);
  QCOMPARE(picturesOf(pages()).front(), QSize(844, 430));
  QVERIFY(pages().document()->size().toSize().height() > height * 3 / 2);
}

void HelpReadingSuite::aPictureIsNeverWiderThanTheView() {
  help_->viewer().open("strony\\OdFormy.htm");
  QTRY_COMPARE(pages().source().fileName(), "OdFormy.htm");
  for (const int zoom : {200, 100}) {
    help_->window.findChild<app::HelpBrowser*>()->setZoom(zoom);
    pages().resize(1400, 800);
    QCOMPARE(picturesOf(pages()).front(), QSize(422, 215) * zoom / 100);
    pages().resize(400, 400);
    QVERIFY(picturesOf(pages()).front().width() < pages().viewport()->width());
    QVERIFY(picturesOf(pages()).front().width() > 300);
  }
  QCOMPARE(pages().horizontalScrollBar()->maximum(), 0);
}

std::unique_ptr<QObject> helpReadingSuite() { return std::make_unique<HelpReadingSuite>(); }

}  // namespace odmiennik::window_test

#include "help_reading_test.moc"
