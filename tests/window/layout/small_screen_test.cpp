// SPDX-License-Identifier: GPL-3.0-or-later
// The window on a screen of 640 by 480 pixels.
#include <QScreen>

#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

using dictionary::Button;
using dictionary::MessageId;

class SmallScreenSuite : public QObject {
  Q_OBJECT

 private slots:
  void theWindowIsFittedToTheScreen();
  void theFirstRescaleAsksAndYesGoesOn();
  void deliberateTwoBlanksStandInTheQuestion();
  void noEndsTheProgramBeforeSettingsAreReadOrSaved();
  void everyFurtherRescaleAsksAgain();
  void resizesBehindTheQuestionAreRescaledWhenItIsAnswered();
  void maximisedAndRestoredTwentyTimesItAsksEachTimeAndKeepsAnEditedVerb();
  void theAnswerNoIsFinal();

 private:
  // Starts the program in a window that is smaller than the screen, and forgets its questions.
  static void startSmall(ProgramRun& run) {
    run.program.start();
    run.program.window().resize(620, 440);
    QTRY_COMPARE(run.messages.shown.size(), std::size_t{2});
    run.messages.shown.clear();
  }

  ProgramHome home_;
};

void SmallScreenSuite::theWindowIsFittedToTheScreen() {
  QCOMPARE(QGuiApplication::primaryScreen()->size(), QSize(640, 480));
  ProgramRun run(home_);
  run.program.start();
  const QSize frame = run.program.window().frameGeometry().size();
  QVERIFY(frame.width() <= 640 && frame.height() <= 480);
  const QWidget& button = run.widget<QWidget>("cmdOdmień");
  QVERIFY(button.parentWidget()->rect().contains(button.geometry()));
}

void SmallScreenSuite::theFirstRescaleAsksAndYesGoesOn() {
  ProgramRun run(home_);
  run.program.start();
  QCOMPARE(run.messages.shown, std::vector{MessageId::resolutionTooLow});
  QCOMPARE(run.ends, 0);
  QVERIFY(run.program.window().scaling().layout().horizontalFactor < 1);
}

void SmallScreenSuite::deliberateTwoBlanksStandInTheQuestion() {
  const auto& row = dictionary::row(MessageId::resolutionTooLow);
  QCOMPARE(row.text,
           "Uwaga! Program może działać nieprawidłowo  w tej rozdzielczości. Zmień ją na 800x600 "
           "lub wyższą. Chcesz kontynuować?");
  QCOMPARE(row.icon, dictionary::Icon::exclamation);
  QVERIFY(contains(row.buttons, Button::yes) && contains(row.buttons, Button::no));
}

void SmallScreenSuite::noEndsTheProgramBeforeSettingsAreReadOrSaved() {
  ProgramHome home;
  ProgramRun run(home);
  run.messages.answer = Button::no;
  run.program.start();
  QCOMPARE(run.ends, 1);
  QCOMPARE(run.messages.shown, std::vector{MessageId::resolutionTooLow});
  QVERIFY(!std::filesystem::exists(home.path() / "Werbolin.cfg"));
  QCOMPARE(run.program.window().scaling().layout().controls[0].left, 60.0F);
}

void SmallScreenSuite::everyFurtherRescaleAsksAgain() {
  ProgramRun run(home_);
  run.program.start();
  run.program.window().resize(run.program.window().size() - QSize(5, 5));
  QTRY_COMPARE(run.messages.shown.size(), std::size_t{2});
  QCOMPARE(run.messages.shown[1], MessageId::resolutionTooLow);
}

void SmallScreenSuite::resizesBehindTheQuestionAreRescaledWhenItIsAnswered() {
  ProgramRun run(home_);
  app::MainWindow& window = run.program.window();
  run.messages.whileShown = [&] {
    run.messages.whileShown = nullptr;
    window.resize(window.size() - QSize(7, 7));
    QCoreApplication::processEvents();
  };
  run.program.start();
  const QSize surface = window.centralWidget()->size();
  QTRY_COMPARE(window.scaling().layout().design,
               (app::TwipSize{surface.width() * 15, surface.height() * 15}));
  QCOMPARE(run.messages.shown.size(), std::size_t{2});
}

// That nothing is asked inside an event of the window is watched wherever a message is shown.
void SmallScreenSuite::maximisedAndRestoredTwentyTimesItAsksEachTimeAndKeepsAnEditedVerb() {
  ProgramRun run(home_);
  app::MainWindow& window = run.program.window();
  startSmall(run);
  run.conjugate("aimer");
  QVERIFY(run.program.editing().edit());
  auto& box = run.widget<QLineEdit>("txtCzasownik_0");
  box.setText("aimechange");
  for (std::size_t time = 1; time <= 20; ++time) {
    window.setWindowState(window.windowState() ^ Qt::WindowMaximized);
    QTRY_COMPARE(run.messages.shown.size(), time);
    QCOMPARE(run.messages.shown.back(), MessageId::resolutionTooLow);
    const QSize surface = window.centralWidget()->size();
    QCOMPARE(window.scaling().layout().design,
             (app::TwipSize{surface.width() * 15, surface.height() * 15}));
  }
  QCOMPARE(box.text(), "aimechange");
  QVERIFY(run.program.editing().isEditing());
}

void SmallScreenSuite::theAnswerNoIsFinal() {
  ProgramRun run(home_);
  app::MainWindow& window = run.program.window();
  startSmall(run);
  run.messages.answer = Button::no;
  window.setWindowState(Qt::WindowMaximized);
  QTRY_COMPARE(run.ends, 1);
  window.setWindowState(Qt::WindowNoState);
  window.resize(window.size() - QSize(9, 9));
  QVERIFY(!window.scaling().rescale());
  QCoreApplication::processEvents();
  QCOMPARE(run.ends, 1);
  QCOMPARE(run.messages.shown.size(), std::size_t{1});
}

std::unique_ptr<QObject> smallScreenSuite() { return std::make_unique<SmallScreenSuite>(); }

}  // namespace odmiennik::window_test

#include "small_screen_test.moc"
