// SPDX-License-Identifier: GPL-3.0-or-later
// Pages of the help on paper, printed to a real queue.
#include <QDir>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <algorithm>

#include "app/common/text.h"
#include "app/help/page_pieces.h"
#include "app/help/page_text.h"
#include "app/help/paper_document.h"
#include "tests/window/help_under_test.h"
#include "tests/window/print_server.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

constexpr char kQueue[] = "Handouts";

}  // namespace

class HelpPrintingSuite : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void cleanupTestCase() { server_.reset(); }
  void cleanup();

  void everyLineAndRowStandsOnOneSheet();
  void aHeadingIsNeverTheLastOnASheet();
  void aTableThatGoesOnHasItsHeadAgain();
  void textHasTenToTwelvePointsAndHeadingsMore();
  void everySheetHasTitleAndNumber();
  void onlyTheChosenSheetsArePrinted();
  void paperIsLightInADarkTheme();
  void picturesAreOnPaperInTheirSize();

 private:
  void print(const QString& page);
  [[nodiscard]] QString printedText(const QString& order = "-layout") const;

  std::unique_ptr<PrintServer> server_;
  std::unique_ptr<HelpUnderTest> help_;
  int from_ = 0, to_ = 0;  // sheets; 0 for all
};

void HelpPrintingSuite::initTestCase() {
  skipWithoutHelpFile();
  const QString obstacle = PrintServer::obstacle();
  if (!obstacle.isEmpty()) QSKIP(qPrintable("printing to a real queue is not tested: " + obstacle));
  server_ = std::make_unique<PrintServer>();
  QVERIFY(server_->isRunning());
}

void HelpPrintingSuite::cleanup() {
  help_.reset();
  from_ = to_ = 0;
  if (server_) server_->removeQueue(kQueue);
}

// As a printer of 600 dots an inch gets it. The document is kept where ODMIENNIK_KEEP says, for
// whoever wants to look at it.
void HelpPrintingSuite::print(const QString& page) {
  server_->addQueue(kQueue);
  help_ = std::make_unique<HelpUnderTest>();
  help_->viewer().open(app::toUtf8("strony\\" + page));
  QPrinter printer(QPrinterInfo::printerInfo(kQueue), QPrinter::HighResolution);
  printer.setResolution(600);
  printer.setPageSize(QPageSize(QPageSize::A4));
  if (to_ > 0) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(from_, to_);
  }
  help_->widget<app::HelpWindow>("frmPomoc").printTo(printer);
  QTRY_VERIFY_WITH_TIMEOUT(server_->hasPrinted(kQueue), 20'000);
  const QString folder = qEnvironmentVariable("ODMIENNIK_KEEP");
  if (!folder.isEmpty()) QFile::copy(server_->document(kQueue), folder + "/" + page + ".pdf");
}

// In the order of the sheet, or "-raw" in that of printing.
QString HelpPrintingSuite::printedText(const QString& order) const {
  return outputOf("pdftotext", {order, server_->document(kQueue), "-"});
}

void HelpPrintingSuite::everyLineAndRowStandsOnOneSheet() {
  app::HelpBook book(app::helpFilePlaces());
  QVERIFY(book.open());
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setResolution(600);
  constexpr double kWidth = 4000, kHeight = 5800;
  int rows = 0;
  for (const app::HelpContentsEntry& entry : book.contents()) {
    const app::PaperDocument page(book, app::helpAddress(entry.page), printer, kWidth);
    const auto pieces = app::piecesOf(page);
    const auto sheets = app::pagesOf(pieces, kHeight);
    for (const app::TextPiece& piece : pieces) {
      const auto holds = [&](const app::TextPage& sheet) {
        return sheet.part.top <= piece.place.top && piece.place.bottom <= sheet.part.bottom;
      };
      QCOMPARE(std::count_if(sheets.begin(), sheets.end(), holds), 1);
      if (piece.heading.height() > 0) ++rows;
    }
    QVERIFY(sheets.back().part.bottom <= page.size().height());
  }
  QVERIFY(rows > 100);
}

void HelpPrintingSuite::aHeadingIsNeverTheLastOnASheet() {
  print("PasseCompose.htm");
  for (const QString& sheet : printedText().split('\f', Qt::SkipEmptyParts)) {
    const QStringList lines = sheet.split('\n', Qt::SkipEmptyParts);
    const QString last = lines.at(lines.size() - 2).trimmed();
    for (const char* heading : {"Co wyraża", "Jak się tworzy", "Nieregularne tematy",
                                "Kiedy się używa", "Przykłady", "Typowe błędy", "Zobacz też"})
      QVERIFY2(last != QString::fromUtf8(heading), qPrintable(sheet));
  }
}

void HelpPrintingSuite::aTableThatGoesOnHasItsHeadAgain() {
  print("ZnaneOdstepstwa.htm");
  const QStringList sheets = printedText().split('\f', Qt::SkipEmptyParts);
  QVERIFY(sheets.size() > 3);
  int again = 0;
  for (const QString& sheet : sheets)
    again += static_cast<int>(sheet.count(QRegularExpression("Program +Norma")));
  QVERIFY(again >= sheets.size() - 1);
}

void HelpPrintingSuite::textHasTenToTwelvePointsAndHeadingsMore() {
  print("PasseSimple.htm");
  const QString xml =
      outputOf("pdftohtml", {"-xml", "-stdout", "-i", "-zoom", "1", server_->document(kQueue)});
  QMap<QString, int> sizes;
  static const QRegularExpression font("<fontspec id=\"(\\d+)\" size=\"(\\d+)\"");
  for (auto fonts = font.globalMatch(xml); fonts.hasNext();) {
    const auto match = fonts.next();
    sizes[match.captured(1)] = match.captured(2).toInt();
  }
  const auto sizeOf = [&](const char* text) {
    const QRegularExpression line("font=\"(\\d+)\">(?:<[bi]>)*" + QString::fromUtf8(text));
    return sizes.value(line.match(xml).captured(1));
  };
  const int text = sizeOf("opowiada");
  QMap<int, int> letters;
  static const QRegularExpression lines("<text[^>]*font=\"(\\d+)\">(.*)</text>");
  for (auto each = lines.globalMatch(xml); each.hasNext();) {
    const auto match = each.next();
    letters[sizes.value(match.captured(1))] += static_cast<int>(match.captured(2).size());
  }
  const int most = std::max_element(letters.begin(), letters.end()).key();
  QVERIFY2(most >= 10 && most <= 12, qPrintable(QString::number(most)));
  QVERIFY(text == 0 || text == most);
  QVERIFY2(sizeOf("Co wyraża") > most, qPrintable(xml.left(2000)));
  QVERIFY2(sizes.values().contains(18) || *std::max_element(sizes.begin(), sizes.end()) > most + 3,
           qPrintable(xml.left(2000)));
}

void HelpPrintingSuite::everySheetHasTitleAndNumber() {
  print("PasseCompose.htm");
  app::HelpBook book(app::helpFilePlaces());
  QVERIFY(book.open());
  const QString title = app::pageText(book.page(app::helpAddress("strony/PasseCompose.htm"))).title;
  const QStringList sheets = printedText("-raw").split('\f', Qt::SkipEmptyParts);
  QVERIFY(sheets.size() >= 2);
  for (qsizetype sheet = 0; sheet < sheets.size(); ++sheet) {
    QVERIFY2(sheets[sheet].trimmed().startsWith(title), qPrintable(sheets[sheet]));
    QVERIFY(sheets[sheet].contains(QString("Strona %1 z %2\n").arg(sheet + 1).arg(sheets.size())));
  }
}

void HelpPrintingSuite::onlyTheChosenSheetsArePrinted() {
  from_ = to_ = 2;
  print("PasseCompose.htm");
  const QStringList sheets = printedText().split('\f', Qt::SkipEmptyParts);
  QCOMPARE(sheets.size(), 1);
  QVERIFY(sheets[0].contains("Strona 2 z "));
}

void HelpPrintingSuite::paperIsLightInADarkTheme() {
  const QPalette light = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x2D, 0x2D, 0x2D)));
  print("Drukowanie.htm");
  QApplication::setPalette(light);
  const QString root = server_->document(kQueue) + "-sheet";
  outputOf("pdftoppm", {"-r", "40", "-png", "-singlefile", server_->document(kQueue), root});
  const QImage sheet(root + ".png");
  QVERIFY(!sheet.isNull());
  int dark = 0, white = 0;
  for (int y = 0; y < sheet.height(); ++y)
    for (int x = 0; x < sheet.width(); ++x) {
      dark += sheet.pixelColor(x, y).lightness() < 128 ? 1 : 0;
      white += sheet.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
    }
  QVERIFY(dark > 100);
  QVERIFY(white > sheet.width() * sheet.height() / 2);
}

// 96 points of a picture are an inch of paper, whatever the printer's resolution.
void HelpPrintingSuite::picturesAreOnPaperInTheirSize() {
  print("OdFormy.htm");
  const QString images = outputOf("pdfimages", {"-list", server_->document(kQueue)});
  const auto found =
      QRegularExpression("image +(\\d+) +(\\d+) .* (\\d+) +(\\d+) +[\\d.]+[BK] ").match(images);
  QVERIFY2(found.hasMatch(), qPrintable(images));
  QCOMPARE(found.captured(1).toInt(), 422);
  QVERIFY2(std::abs(found.captured(3).toInt() - 96) <= 1, qPrintable(images));
}

std::unique_ptr<QObject> helpPrintingSuite() { return std::make_unique<HelpPrintingSuite>(); }

}  // namespace odmiennik::window_test

#include "help_printing_test.moc"
