// Printing without a printer, and the picture that is printed.
#include "app/printing/printed_picture.h"
#include "tests/window/program_run.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::MessageId;
using Messages = std::vector<MessageId>;

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

 private:
  [[nodiscard]] QList<QWidget*> hiddenOnPaper() const {
    QList<QWidget*> controls{&program_->auxiliary()};
    for (int letter = 0; letter < 13; ++letter)
      controls += &program_->widget<QPushButton>(QString("cmdFrancuskaLitera_%1").arg(letter));
    return controls;
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
  QCOMPARE(std::string(row.text), std::string("Drukarka nie jest gotowa."));
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
  constexpr int kScale = 4;
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

std::unique_ptr<QObject> printingSuite() { return std::make_unique<PrintingSuite>(); }

}  // namespace odmiennik::window_test

#include "printing_test.moc"
