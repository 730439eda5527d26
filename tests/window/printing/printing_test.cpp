// SPDX-License-Identifier: GPL-3.0-or-later
// Printing without a printer, and the picture that is printed.
#include "app/common/colours.h"
#include "app/printing/paper_look.h"
#include "app/printing/printed_picture.h"
#include "tests/window/printing/colour_on_paper.h"
#include "tests/window/program_run.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"
#include "tests/window/themes.h"

namespace odmiennik::window_test {
namespace {

using dictionary::MessageId;
using Messages = std::vector<MessageId>;

constexpr int kScale = 4;  // of a picture for paper to the screen

double strongest(const QImage& picture, const QRect& part) {
  double found = 1;
  for (int y = part.top(); y <= part.bottom(); ++y)
    for (int x = part.left(); x <= part.right(); ++x)
      found = std::max(found, contrast(picture.pixelColor(x, y), Qt::white));
  return found;
}

// Whether a part is made of squares of the screen's dots: enlarged, not drawn.
bool isMadeOfSquares(const QImage& picture, const QRect& part) {
  const QImage cut = picture.copy(part);
  return cut == cut.scaled(part.size() / kScale).scaled(part.size());
}

}  // namespace

class PrintingSuite : public QObject {
  Q_OBJECT

 private slots:
  // A server that does not exist has no printers, whatever this machine has.
  void initTestCase() { qputenv("CUPS_SERVER", "/nowhere/odmiennik-print-server"); }
  void init() { program_ = std::make_unique<ProgramUnderTest>(); }
  void cleanup() { program_.reset(); }

  void withoutAPrinterAMessageIsShown();
  void theMessageIsAnExclamationWithOk();
  void afterAFailureTheHiddenControlsAreBack();
  void theControlsAreHiddenUntilTheMessageIsAnswered();
  void aHiddenLetterStaysHidden();
  void theFocusStaysWhereItWas();
  void settingUpWithoutAPrinterChangesNothing();
  void thePictureIsDrawnAnewInItsSize();
  void thePictureFillsThePageInItsProportion();
  void theGroundIsWhiteInEveryTheme_data() { addThemes(); }
  void theGroundIsWhiteInEveryTheme();
  void neitherSelectionNorFocusIsPrinted();
  void framesAreDrawnInThePrintersDots();
  void aColourForDarkGroundIsReadableOnPaper();
  void theWindowOnTheScreenStaysAsItIs();

 private:
  [[nodiscard]] QList<QWidget*> hiddenOnPaper() const {
    QList<QWidget*> controls{&program_->auxiliary()};
    for (int letter = 0; letter < 13; ++letter)
      controls += &program_->widget<QPushButton>(QString("cmdFrancuskaLitera_%1").arg(letter));
    return controls;
  }
  // What is printed of the window.
  [[nodiscard]] QImage page() const {
    QWidget& area = *program_->window.centralWidget();
    const app::PaperLook look(program_->window);
    return app::pictureOf(area, area.width() * kScale);
  }
  [[nodiscard]] QRect placeOf(const char* name) const {
    const QRect place = program_->widget<QWidget>(QString::fromUtf8(name)).geometry();
    return {place.topLeft() * kScale, place.size() * kScale};
  }
  void print() const {
    program_->item("mnuPlikDrukuj").trigger();
    QTRY_VERIFY(!program_->messages.shown.empty());
  }

  std::unique_ptr<ProgramUnderTest> program_;
};

void PrintingSuite::withoutAPrinterAMessageIsShown() {
  QVERIFY(program_->item("mnuPlikDrukuj").isEnabled());
  print();
  QCOMPARE(program_->messages.shown, Messages{MessageId::printerNotReady});
}

void PrintingSuite::theMessageIsAnExclamationWithOk() {
  const dictionary::MessageRow& row = dictionary::row(MessageId::printerNotReady);
  QCOMPARE(row.icon, dictionary::Icon::exclamation);
  QCOMPARE(row.buttons, dictionary::Button::ok);
  QVERIFY(row.title.empty());
  QCOMPARE(row.text, Utf8View("Drukarka nie jest gotowa."));
}

void PrintingSuite::afterAFailureTheHiddenControlsAreBack() {
  print();
  for (const QWidget* control : hiddenOnPaper())
    QVERIFY2(control->isVisible(), qPrintable(control->objectName()));
}

void PrintingSuite::theControlsAreHiddenUntilTheMessageIsAnswered() {
  int visible = -1;
  program_->messages.whileShown = [&] {
    const auto controls = hiddenOnPaper();
    visible = static_cast<int>(
        std::count_if(controls.begin(), controls.end(), [](auto* c) { return c->isVisible(); }));
  };
  print();
  QCOMPARE(visible, 0);
}

void PrintingSuite::aHiddenLetterStaysHidden() {
  auto& letter = program_->widget<QPushButton>("cmdFrancuskaLitera_3");
  letter.hide();
  print();
  QVERIFY(letter.isHidden());
}

void PrintingSuite::theFocusStaysWhereItWas() {
  program_->auxiliary().setFocus();
  QTRY_VERIFY(program_->auxiliary().hasFocus());
  print();
  QVERIFY(program_->auxiliary().hasFocus());
}

void PrintingSuite::settingUpWithoutAPrinterChangesNothing() {
  QVERIFY(program_->item("mnuPlikUstawieniaDrukarki").isEnabled());
  ModalVisitor visitor([](QDialog& dialog) { QCOMPARE(dialog.windowTitle(), "Page Setup"); });
  program_->item("mnuPlikUstawieniaDrukarki").trigger();
  QCoreApplication::processEvents();
  QVERIFY(program_->messages.shown.empty());
}

// A copy of the screen, enlarged, has only blocks of equal dots; letters drawn anew have finer
// ones.
void PrintingSuite::thePictureIsDrawnAnewInItsSize() {
  program_->conjugate("aller");
  QWidget& area = *program_->window.centralWidget();
  const QImage picture = app::pictureOf(area, area.width() * kScale);
  QCOMPARE(picture.size(), area.size() * kScale);
  const QImage enlarged = picture.scaled(area.size()).scaled(picture.size());
  int different = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      different += picture.pixel(x, y) != enlarged.pixel(x, y) ? 1 : 0;
  QVERIFY(different > 10'000);
}

void PrintingSuite::thePictureFillsThePageInItsProportion() {
  const QRect page(0, 0, 4000, 2000);
  QCOMPARE(app::fitted(QSize(400, 100), page), QRect(0, 500, 4000, 1000));
  QCOMPARE(app::fitted(QSize(100, 100), page), QRect(1000, 0, 2000, 2000));
}

// Between the controls, in the boxes and behind the entry box; only letters and lines are dark.
void PrintingSuite::theGroundIsWhiteInEveryTheme() {
  QFETCH(QPalette, palette);
  const Theme theme(palette);
  program_->conjugate("finir");
  const QImage picture = page();
  int white = 0, dots = 0;
  for (int y = 0; y < picture.height(); y += 2)
    for (int x = 0; x < picture.width(); x += 2, ++dots)
      white += picture.pixelColor(x, y) == Qt::white ? 1 : 0;
  QVERIFY2(white > dots * 0.85, qPrintable(QString("%1 of %2").arg(white).arg(dots)));
  QVERIFY(strongest(picture, placeOf("txtCzasownik_0")) >= 7);
}

void PrintingSuite::neitherSelectionNorFocusIsPrinted() {
  program_->conjugate("finir");
  QVERIFY(program_->entry().hasFocus() && program_->entry().hasSelectedText());
  const QImage picture = page();
  const QRect entry = placeOf("txtCzasownik_96");
  QVERIFY(!isColoured(picture, entry));
  QVERIFY(strongest(picture, entry) >= 7);
}

// The rounded corners tell: a frame of the screen's dots has steps there.
void PrintingSuite::framesAreDrawnInThePrintersDots() {
  const QImage picture = page();
  for (const char* name :
       {"txtCzasownik_0", "txtCzasownik_96", "cmdOdmień", "frmInformacjeOCzasowniku"}) {
    constexpr QSize kCorner = QSize(4, 4) * kScale;
    const QRect place = placeOf(name);
    const QPoint topLeft(place.right() + 1 - kCorner.width(),
                         place.bottom() + 1 - kCorner.height());
    const QRect corner(topLeft, kCorner);
    QVERIFY2(strongest(picture, corner) >= 2, name);
    QVERIFY2(!isMadeOfSquares(picture, corner), name);
  }
}

void PrintingSuite::aColourForDarkGroundIsReadableOnPaper() {
  const std::int32_t pale = app::numberOf(QColor(0xFF, 0xF0, 0xB0));
  program_->window.colours().ApplyColours(pale, pale);
  const QImage picture = page();
  for (const char* heading : {"lblTryb_0", "lblCzas_0"})
    QVERIFY2(strongest(picture, placeOf(heading)) >= 3, heading);
  QCOMPARE(program_->window.colours().live().mood, pale);
}

void PrintingSuite::theWindowOnTheScreenStaysAsItIs() {
  const Theme theme(darkPalette());
  program_->conjugate("finir");
  // A shade of the design, which the user has chosen for himself.
  program_->window.colours().ApplyColours(app::numberOf(app::kMoodOnLight), 255);
  const QImage before = program_->window.grab().toImage();
  QVERIFY(page() != before);
  QCOMPARE(program_->window.grab().toImage(), before);
  QCOMPARE(program_->entry().selectedText(), "finir");
  QVERIFY(program_->entry().hasFocus());
}

std::unique_ptr<QObject> printingSuite() { return std::make_unique<PrintingSuite>(); }

}  // namespace odmiennik::window_test

#include "printing_test.moc"
