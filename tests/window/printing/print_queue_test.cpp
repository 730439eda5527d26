// SPDX-License-Identifier: GPL-3.0-or-later
// Printing to real queues of a private print server.
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QListWidget>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QSet>
#include <QSpinBox>

#include "tests/window/print_server.h"
#include "tests/window/printing/colour_on_paper.h"
#include "tests/window/program_run.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"
#include "tests/window/themes.h"

namespace odmiennik::window_test {
namespace {

using dictionary::MessageId;
using Messages = std::vector<MessageId>;

constexpr char kQueue[] = "First";
constexpr char kOtherQueue[] = "Second";

// Columns of pdfimages.
constexpr int kWidth = 3;
constexpr int kEncoding = 8;
constexpr int kResolution = 12;

// Whether all dots of a part of the picture have one colour.
bool isEmpty(const QImage& picture, const QRect& part) {
  for (int y = part.top(); y <= part.bottom(); ++y)
    for (int x = part.left(); x <= part.right(); ++x)
      if (picture.pixel(x, y) != picture.pixel(part.topLeft())) return false;
  return true;
}

// Whether a part of the picture is made of squares of equal dots: enlarged, not drawn.
bool isMadeOfSquares(const QImage& picture, const QRect& part, int side) {
  const QRect place(part.topLeft() / side * side, part.size());
  for (int y = place.top(); y + side <= place.bottom(); y += side)
    for (int x = place.left(); x + side <= place.right(); x += side)
      if (!isEmpty(picture, QRect(x, y, side, side))) return false;
  return true;
}

}  // namespace

class PrintQueueSuite : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void init();
  void cleanup();
  void cleanupTestCase() { server_.reset(); }

  void theWindowIsOnePageLyingDown();
  void thePictureIsFineAndWithoutLoss();
  void thePictureLacksWhatMeansNothingOnPaper();
  void thePageIsForPaperThoughTheThemeIsDark();
  void afterPrintingTheHiddenControlsAreBack();
  void theListPrintsTheVerbSelectedThere();
  void aRejectingQueueIsNotReady();
  void aStoppedQueueIsNotReady();
  void aQueueThatRefusesTheJobIsNotReady();
  void theChosenPrinterBecomesTheDefault();
  void cancelLeavesTheDefault();
  void whatIsChosenIsPrintedWith();
  void whatWasChosenIsOfferedAgain();
  void theDialogOffersNothingInEnglishButItsTitle();

 private:
  void print() const { program_->item("mnuPlikDrukuj").trigger(); }
  void verifyRefusal() const;
  [[nodiscard]] QStringList pictureFacts() const;
  [[nodiscard]] QRect placeOf(const QWidget& control, const QImage& picture) const;
  [[nodiscard]] QImage printedPicture() const;
  static void choosePrinter(QDialog& dialog, const QString& name);
  void setUp(const std::function<void(QDialog&)>& choose) const;

  std::unique_ptr<PrintServer> server_;
  std::unique_ptr<ProgramUnderTest> program_;
};

void PrintQueueSuite::initTestCase() {
  const QString obstacle = PrintServer::obstacle();
  if (!obstacle.isEmpty()) QSKIP(qPrintable("printing to a real queue is not tested: " + obstacle));
  server_ = std::make_unique<PrintServer>();
  QVERIFY(server_->isRunning());
}

void PrintQueueSuite::init() {
  server_->addQueue(kQueue);
  server_->addQueue(kOtherQueue);
  server_->makeDefault(kQueue);
  QCOMPARE(QPrinterInfo::defaultPrinterName(), kQueue);
  program_ = std::make_unique<ProgramUnderTest>();
}

void PrintQueueSuite::cleanup() {
  program_.reset();
  if (!server_) return;
  server_->removeQueue(kQueue);
  server_->removeQueue(kOtherQueue);
}

// Wider than the page would be upright, whichever way round the printer is fed.
void PrintQueueSuite::theWindowIsOnePageLyingDown() {
  print();
  QTRY_VERIFY_WITH_TIMEOUT(server_->hasPrinted(kQueue), 20'000);
  const QString facts = outputOf("pdfinfo", {server_->document(kQueue)});
  QVERIFY2(facts.contains(QRegularExpression("Pages: +1\n")), qPrintable(facts));
  constexpr double kUprightInches = 8.5;
  const QStringList picture = pictureFacts();
  QVERIFY2(
      picture.value(kWidth).toDouble() / picture.value(kResolution).toDouble() > kUprightInches,
      qPrintable(picture.join(' ')));
  QVERIFY(program_->messages.shown.empty());
}

// The one line of pdfimages: page, number, type, width, height, colour, components, bits, encoding
// …
QStringList PrintQueueSuite::pictureFacts() const {
  const QString list = outputOf("pdfimages", {"-list", server_->document(kQueue)});
  const QStringList pictures = list.trimmed().split('\n').mid(2);
  return pictures.size() == 1 ? pictures[0].simplified().split(' ') : QStringList();
}

void PrintQueueSuite::thePictureIsFineAndWithoutLoss() {
  print();
  QTRY_VERIFY_WITH_TIMEOUT(server_->hasPrinted(kQueue), 20'000);
  const QStringList picture = pictureFacts();
  QCOMPARE(picture.value(kEncoding), "image");
  QVERIFY2(picture.value(kWidth).toInt() > 2500, qPrintable(picture.join(' ')));
  QVERIFY2(picture.value(kResolution).toInt() >= 300, qPrintable(picture.join(' ')));
}

// The picture alone, out of the printed document.
QImage PrintQueueSuite::printedPicture() const {
  const QString root = server_->document(kQueue) + "-picture";
  outputOf("pdfimages", {server_->document(kQueue), root});
  return QImage(root + "-000.ppm");
}

// Where a control of the window stands in its picture, its edges left out.
QRect PrintQueueSuite::placeOf(const QWidget& control, const QImage& picture) const {
  const qreal scale =
      static_cast<qreal>(picture.width()) / program_->window.centralWidget()->width();
  const QRect place = control.geometry().adjusted(3, 3, -3, -3);
  return {place.topLeft() * scale, place.size() * scale};
}

void PrintQueueSuite::thePictureLacksWhatMeansNothingOnPaper() {
  program_->conjugate("monter");
  print();
  QTRY_VERIFY_WITH_TIMEOUT(server_->hasPrinted(kQueue), 20'000);
  const QImage picture = printedPicture();
  QVERIFY(!picture.isNull());
  QVERIFY(isEmpty(picture, placeOf(program_->auxiliary(), picture)));
  for (int letter = 0; letter < 13; ++letter)
    QVERIFY(isEmpty(picture, placeOf(program_->widget<QPushButton>(
                                         QString("cmdFrancuskaLitera_%1").arg(letter)),
                                     picture)));
  QVERIFY(!isEmpty(picture, placeOf(program_->widget<QPushButton>("cmdOdmień"), picture)));
  QVERIFY(!isEmpty(picture, placeOf(program_->box(0), picture)));
}

// White ground, nothing coloured about the entry box, which has selection and focus, and frames
// whose corners are not made of the screen's dots.
void PrintQueueSuite::thePageIsForPaperThoughTheThemeIsDark() {
  const Theme theme(darkPalette());
  program_->conjugate("finir");
  QVERIFY(program_->entry().hasFocus() && program_->entry().hasSelectedText());
  print();
  QTRY_VERIFY_WITH_TIMEOUT(server_->hasPrinted(kQueue), 20'000);
  const QImage picture = printedPicture();
  QVERIFY(!picture.isNull());
  const QRect entry = placeOf(program_->entry(), picture);
  constexpr int kEdge = 40;
  QVERIFY(!isColoured(picture, entry.adjusted(-kEdge, -kEdge, kEdge, kEdge)));
  for (const QWidget* box : {&program_->box(0), &program_->entry()}) {
    const QRect place = placeOf(*box, picture);
    QCOMPARE(picture.pixelColor(place.right(), place.center().y()), Qt::white);
    QVERIFY(!isEmpty(picture, place));
    const int dots = picture.width() / program_->window.centralWidget()->width();
    QVERIFY(!isMadeOfSquares(picture, QRect(place.bottomRight(), QSize(4, 4) * dots), 2));
  }
}

void PrintQueueSuite::afterPrintingTheHiddenControlsAreBack() {
  print();
  QTRY_VERIFY_WITH_TIMEOUT(server_->hasPrinted(kQueue), 20'000);
  QVERIFY(program_->auxiliary().isVisible());
  for (int letter = 0; letter < 13; ++letter)
    QVERIFY(
        program_->widget<QPushButton>(QString("cmdFrancuskaLitera_%1").arg(letter)).isVisible());
}

void PrintQueueSuite::theListPrintsTheVerbSelectedThere() {
  program_->item("mnuEdycjaLista").trigger();
  QTRY_VERIFY(program_->window.findChild<QDialog*>("frmLista") != nullptr);
  auto& list = program_->widget<QDialog>("frmLista");
  list.findChild<QComboBox*>("cmbLista")->setCurrentIndex(25);
  const QString verb = list.findChild<QListWidget*>("lstCzasowniki")->currentItem()->text();
  list.findChild<QPushButton*>("cmdDrukuj")->click();
  QTRY_VERIFY_WITH_TIMEOUT(server_->hasPrinted(kQueue), 20'000);
  QCOMPARE(program_->form(96), verb);
  // Before, the box was empty: the verb has been conjugated first.
  const QImage picture = printedPicture();
  QVERIFY(!isEmpty(picture, placeOf(program_->box(0), picture)));
}

void PrintQueueSuite::verifyRefusal() const {
  print();
  QTRY_COMPARE(program_->messages.shown, Messages{MessageId::printerNotReady});
  QVERIFY(program_->auxiliary().isVisible());
  QVERIFY(program_->widget<QPushButton>("cmdFrancuskaLitera_12").isVisible());
  QVERIFY(!QFile::exists(server_->document(kQueue)));
}

void PrintQueueSuite::aRejectingQueueIsNotReady() {
  outputOf("cupsreject", {kQueue});
  verifyRefusal();
}

void PrintQueueSuite::aStoppedQueueIsNotReady() {
  outputOf("cupsdisable", {kQueue});
  verifyRefusal();
}

void PrintQueueSuite::aQueueThatRefusesTheJobIsNotReady() {
  outputOf("lpadmin", {"-p", kQueue, "-u", "allow:nobody"});
  verifyRefusal();
}

void PrintQueueSuite::choosePrinter(QDialog& dialog, const QString& name) {
  QCOMPARE(dialog.objectName(), "dlgCommonDialog");
  QCOMPARE(dialog.windowTitle(), "Page Setup");
  for (QComboBox* box : dialog.findChildren<QComboBox*>())
    if (const int row = box->findText(name); row >= 0) box->setCurrentIndex(row);
}

// Opens the dialog, chooses and accepts.
void PrintQueueSuite::setUp(const std::function<void(QDialog&)>& choose) const {
  QTimer poll;
  connect(&poll, &QTimer::timeout, &poll, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    poll.stop();
    choose(*dialog);
    dialog->accept();
  });
  poll.start(1);
  program_->item("mnuPlikUstawieniaDrukarki").trigger();
  QTRY_VERIFY(!poll.isActive() && QApplication::activeModalWidget() == nullptr);
}

void PrintQueueSuite::theChosenPrinterBecomesTheDefault() {
  setUp([](QDialog& dialog) { choosePrinter(dialog, kOtherQueue); });
  QTRY_COMPARE(QPrinterInfo::defaultPrinterName(), kOtherQueue);
  print();
  QTRY_VERIFY_WITH_TIMEOUT(server_->hasPrinted(kOtherQueue), 20'000);
  QVERIFY(!server_->hasPrinted(kQueue));
}

void PrintQueueSuite::cancelLeavesTheDefault() {
  ModalVisitor visitor([](QDialog& dialog) { choosePrinter(dialog, kOtherQueue); });
  program_->item("mnuPlikUstawieniaDrukarki").trigger();
  QTRY_COMPARE(visitor.visits, 1);
  QCoreApplication::processEvents();
  QCOMPARE(QPrinterInfo::defaultPrinterName(), kQueue);
  QVERIFY(program_->messages.shown.empty());
}

namespace {

template <typename Widget>
Widget& in(const QDialog& dialog, const char* name) {
  auto* found = dialog.findChild<Widget*>(QString::fromUtf8(name));
  if (found == nullptr) qFatal("no control %s", name);
  return *found;
}

void choosePaper(const QDialog& dialog, const QString& name) {
  auto& papers = in<QComboBox>(dialog, "cmbPapier");
  QVERIFY2(papers.findText(name) >= 0, qPrintable(name));
  papers.setCurrentIndex(papers.findText(name));
  emit papers.activated(papers.currentIndex());
}

}  // namespace

// An A5 page is 420 points wide and 595 high, whichever way it lies.
void PrintQueueSuite::whatIsChosenIsPrintedWith() {
  setUp([](QDialog& dialog) {
    choosePaper(dialog, "A5");
    in<QSpinBox>(dialog, "txtKopie").setValue(2);
    in<QCheckBox>(dialog, "chkOdcienieSzarości").setChecked(true);
  });
  program_->conjugate("monter");
  print();
  QTRY_VERIFY_WITH_TIMEOUT(server_->hasPrinted(kQueue), 20'000);
  const QString facts = outputOf("pdfinfo", {server_->document(kQueue)});
  const auto size = QRegularExpression("Page size: +(\\d+)\\S* x (\\d+)").match(facts);
  QVERIFY2(size.hasMatch(), qPrintable(facts));
  const QSet<int> sides{size.captured(1).toInt(), size.captured(2).toInt()};
  QVERIFY2(sides.contains(595) && (sides.contains(419) || sides.contains(420)), qPrintable(facts));
  QVERIFY2(facts.contains(QRegularExpression("Pages: +2\n")), qPrintable(facts));
}

void PrintQueueSuite::whatWasChosenIsOfferedAgain() {
  setUp([](QDialog& dialog) {
    choosePaper(dialog, "A5");
    in<QSpinBox>(dialog, "txtKopie").setValue(3);
    in<QCheckBox>(dialog, "chkOdcienieSzarości").setChecked(true);
  });
  ModalVisitor visitor([](QDialog& dialog) {
    QCOMPARE(in<QComboBox>(dialog, "cmbPapier").currentText(), "A5");
    QCOMPARE(in<QSpinBox>(dialog, "txtKopie").value(), 3);
    QVERIFY(in<QCheckBox>(dialog, "chkOdcienieSzarości").isChecked());
  });
  program_->item("mnuPlikUstawieniaDrukarki").trigger();
  QTRY_COMPARE(visitor.visits, 1);
}

// Every word is one of these, a printer's name, or a paper.
void PrintQueueSuite::theDialogOffersNothingInEnglishButItsTitle() {
  ModalVisitor visitor([](QDialog& dialog) {
    QSet<QString> words;
    for (const auto* label : dialog.findChildren<QLabel*>()) words += label->text();
    for (const auto* button : dialog.findChildren<QAbstractButton*>()) words += button->text();
    words.remove(QString());
    QCOMPARE(words, (QSet<QString>{"&Drukarka:", "&Papier:", "&Liczba kopii:",
                                   "W odcieniach &szarości", "OK", "Anuluj"}));
    const auto& papers = in<QComboBox>(dialog, "cmbPapier");
    QVERIFY(papers.count() > 3);
    const QRegularExpression paper("^([AB]\\d|\\d+ × \\d+ mm)$");
    for (int row = 0; row < papers.count(); ++row)
      QVERIFY2(paper.match(papers.itemText(row)).hasMatch(), qPrintable(papers.itemText(row)));
  });
  program_->item("mnuPlikUstawieniaDrukarki").trigger();
  QTRY_COMPARE(visitor.visits, 1);
}

std::unique_ptr<QObject> printQueueSuite() { return std::make_unique<PrintQueueSuite>(); }

}  // namespace odmiennik::window_test

#include "print_queue_test.moc"
