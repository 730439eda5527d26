// SPDX-License-Identifier: GPL-3.0-or-later
// The start of the program, in its order.
#include <QVersionNumber>

#include "app/controls/form_surface.h"
#include "app/logic/start_up.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::MessageId;
using Messages = std::vector<MessageId>;

// Remembers what the start asks of the layout.
struct Layout {
  bool mayGoOn = true;
  QString steps;
  std::function<void(ProgramRun&)> onVerb = [](ProgramRun&) {};
};

// What comes first: the window's picture or the making of the tip.
class FirstSeen final : public QObject {
 public:
  explicit FirstSeen(QWidget& window) : window_(window) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &window_ && event->type() == QEvent::Paint && steps.isEmpty()) steps = "picture";
    if (watched->objectName() == "frmTip" && !steps.endsWith("tip")) steps += ", tip";
    return false;
  }

  QString steps;

 private:
  QWidget& window_;
};

}  // namespace

class StartUpSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { home_ = std::make_unique<ProgramHome>(); }
  void cleanup() { home_.reset(); }

  void theWindowStandsReadyForTheFirstVerb();
  void theCaptionHasTheVersion();
  void thePronounsOfTheEmptyTableStandBeforeTheWindowIsShown();
  void theMarkerOfAFirstStartEndsTheProgramWithoutAQuestion();
  void theMarkerIsFoundWhateverItsCase();
  void aStartThatIsAbortedShowsNoTipAndCountsNoRun();
  void verbsLostInACrashComeBack();
  void whatAKilledExitLeftOfTheSettingsIsRemoved();
  void theTipIsShownOverTheWindowBeforeTheRunIsCounted();
  void theTipIsMadeOnceTheWindowIsSeen();
  void theTipComesToAWindowThatIsNotSeenToo();
  void theTipIsNotShownWhenItIsSwitchedOff();
  void theLayoutIsNotRescaledOnAScreenOf800Pixels();
  void anyOtherScreenIsRescaledFor();
  void theStepsComeInTheirOrder();
  void aStartEndedByTheResolutionReadsNoSettings();
  void theVerbOfTheCommandLineIsConjugatedAtTheStart();
  void anUnknownVerbOfTheCommandLineHasItsMessage();
  void theDevelopersButtonsAreOutOfReach();
  void theDevelopersToolsWork();

 private:
  std::unique_ptr<ProgramHome> home_;

  // Starts over a layout, on a screen of that width.
  void run(Layout& layout, int screenTwips) {
    ProgramRun run(*home_);
    app::WindowPointer pointer(run.program.window());
    app::StartUp start({.prefix = home_->prefix(),
                        .window = run.program.window(),
                        .pointer = pointer,
                        .settings = run.program.settings(),
                        .userVerbs = run.program.userVerbs(),
                        .tips = run.program.tips(),
                        .closing = run.program.closing(),
                        .messages = run.messages,
                        .layout = {.screenTwips = [=] { return screenTwips; },
                                   .rescale =
                                       [&layout] {
                                         layout.steps += ", rescaled";
                                         return layout.mayGoOn;
                                       }},
                        .setHelpFile = [&layout] { layout.steps += "help file"; },
                        .conjugateGivenVerb = [&] { layout.onVerb(run); }});
    start.run();
  }
};

void StartUpSuite::theWindowStandsReadyForTheFirstVerb() {
  ProgramRun run(*home_);
  QVERIFY(!run.program.window().isVisible());
  run.program.start();
  QVERIFY(QTest::qWaitForWindowActive(&run.program.window()));
  QCOMPARE(run.entry().text(), "infinitif");
  QCOMPARE(run.entry().selectedText(), "infinitif");
  QCOMPARE(run.entry().selectionStart(), 0);
  QCOMPARE(QApplication::focusWidget(), &run.entry());
  QVERIFY(run.messages.shown.empty());
}

void StartUpSuite::theCaptionHasTheVersion() {
  ProgramRun run(*home_);
  QCOMPARE(run.program.window().windowTitle(), "Odmiennik");
  const auto version = QVersionNumber::fromString(QCoreApplication::applicationVersion());
  QCOMPARE(version.segmentCount(), 3);
  run.program.start();
  QCOMPARE(run.program.window().windowTitle(), "Odmiennik v." + version.toString());
}

void StartUpSuite::thePronounsOfTheEmptyTableStandBeforeTheWindowIsShown() {
  ProgramRun run(*home_);
  run.program.window().showEmptyTable();
  QVERIFY(!run.program.window().isVisible());
  QCOMPARE(run.program.window().findChild<app::FormSurface*>()->pronouns().pronoun(0), "je");
}

void StartUpSuite::theMarkerOfAFirstStartEndsTheProgramWithoutAQuestion() {
  home_->write("tmp.dat", "");
  ProgramRun run(*home_);
  bool isVisible = false;
  run.messages.whileShown = [&] { isVisible = run.program.window().isVisible(); };
  run.program.start();
  QCOMPARE(run.messages.shown, Messages{MessageId::restartSystemFirst});
  QVERIFY(isVisible);
  QVERIFY(!run.program.window().isVisible());
  QCOMPARE(run.ends, 1);
}

void StartUpSuite::theMarkerIsFoundWhateverItsCase() {
  home_->write("TMP.DAT", "");
  ProgramRun run(*home_);
  run.program.start();
  QCOMPARE(run.messages.shown, Messages{MessageId::restartSystemFirst});
}

// Its settings are saved all the same, as whenever the window is unloaded.
void StartUpSuite::aStartThatIsAbortedShowsNoTipAndCountsNoRun() {
  home_->write("Werbolin.cfg", "3\r\n1\r\n2\r\n7\r\n1112\r\n");
  home_->write("tmp.dat", "");
  home_->store.setTipShownAtStart(true);
  ProgramRun run(*home_);
  ModalVisitor visitor([](QDialog&) {});
  run.program.start();
  QCOMPARE(visitor.visits, 0);
  QCOMPARE(home_->settings(), "3\r\n1\r\n2\r\n7\r\n1112\r\n");
}

void StartUpSuite::verbsLostInACrashComeBack() {
  home_->write("Werbolin.cfg", "1\r\n0\r\n0\r\n0\r\n10\r\n");
  home_->write("Czas.dat", "kept");
  ProgramRun run(*home_);
  run.program.start();
  QVERIFY(home_->read("Czasowniki.dat") == "kept");
  QVERIFY(!home_->has("Czas.dat"));
}

void StartUpSuite::whatAKilledExitLeftOfTheSettingsIsRemoved() {
  const std::string before = "0\r\n1\r\n2\r\n7\r\n1112\r\n";
  home_->write("Werbolin.cfg", before);
  home_->write("Werbolin.cfg.new", "0\r\n1");
  ProgramRun run(*home_);
  run.program.start();
  QVERIFY(!home_->has("Werbolin.cfg.new"));
  QCOMPARE(home_->read("Werbolin.cfg"), before);
}

void StartUpSuite::theTipIsShownOverTheWindowBeforeTheRunIsCounted() {
  home_->store.setTipShownAtStart(true);
  ProgramRun run(*home_);
  QString name;
  int runsBefore = -1;
  bool isWindowThere = false;
  ModalVisitor visitor([&](QDialog& dialog) {
    name = dialog.objectName();
    runsBefore = run.program.settings().runCount();
    isWindowThere =
        run.program.window().isVisible() && dialog.parentWidget() == &run.program.window();
  });
  run.program.start();
  QCOMPARE(visitor.visits, 1);
  QCOMPARE(name, "frmTip");
  QVERIFY(isWindowThere);
  QCOMPARE(runsBefore, 0);
  QCOMPARE(run.program.settings().runCount(), 1);
}

void StartUpSuite::theTipIsMadeOnceTheWindowIsSeen() {
  home_->store.setTipShownAtStart(true);
  ProgramRun run(*home_);
  FirstSeen seen(run.program.window());
  ModalVisitor visitor([](QDialog&) {});
  run.program.start();
  QCOMPARE(visitor.visits, 1);
  QCOMPARE(seen.steps, "picture, tip");
}

// As one that starts as an icon.
void StartUpSuite::theTipComesToAWindowThatIsNotSeenToo() {
  home_->store.setTipShownAtStart(true);
  ProgramRun run(*home_);
  run.program.window().setUpdatesEnabled(false);
  FirstSeen seen(run.program.window());
  ModalVisitor visitor([](QDialog&) {});
  run.program.start();
  QCOMPARE(visitor.visits, 1);
  QCOMPARE(seen.steps, ", tip");
}

void StartUpSuite::theTipIsNotShownWhenItIsSwitchedOff() {
  ProgramRun run(*home_);
  ModalVisitor visitor([](QDialog&) {});
  run.program.start();
  QCOMPARE(visitor.visits, 0);
}

void StartUpSuite::theLayoutIsNotRescaledOnAScreenOf800Pixels() {
  Layout layout;
  run(layout, 12000);
  QCOMPARE(layout.steps, "help file");
}

void StartUpSuite::anyOtherScreenIsRescaledFor() {
  Layout layout;
  run(layout, 15360);
  QCOMPARE(layout.steps, "help file, rescaled");
  QVERIFY(home_->has("Werbolin.cfg"));
}

// The verb of the command line meets a window in its size, with the settings read, and no tip yet.
void StartUpSuite::theStepsComeInTheirOrder() {
  home_->write("Werbolin.cfg", "0\r\n1\r\n2\r\n7\r\n1112\r\n");
  home_->store.setTipShownAtStart(true);
  Layout layout;
  ModalVisitor visitor([&](QDialog&) { layout.steps += ", tip"; });
  layout.onVerb = [&](ProgramRun& run) {
    QVERIFY(run.program.window().isVisible());
    QVERIFY(run.program.window().windowTitle().startsWith("Odmiennik v."));
    layout.steps += QStringLiteral(", verb, runs %1").arg(run.program.settings().runCount());
  };
  run(layout, 15360);
  QCOMPARE(layout.steps, "help file, rescaled, verb, runs 12, tip");
}

void StartUpSuite::aStartEndedByTheResolutionReadsNoSettings() {
  Layout layout{.mayGoOn = false};
  run(layout, 9600);
  QCOMPARE(layout.steps, "help file, rescaled");
  QVERIFY(!home_->has("Werbolin.cfg"));
}

void StartUpSuite::theVerbOfTheCommandLineIsConjugatedAtTheStart() {
  ProgramRun run(*home_, disk::systemFiles(), "se laver");
  run.program.start();
  QCOMPARE(run.entry().text(), "se laver");
  QCOMPARE(run.entry().selectedText(), "se laver");
  QCOMPARE(run.widget<QLineEdit>("txtCzasownik_0").text(), "me lave");
  QVERIFY(run.messages.shown.empty());
}

void StartUpSuite::anUnknownVerbOfTheCommandLineHasItsMessage() {
  ProgramRun run(*home_, disk::systemFiles(), "xyz");
  run.program.start();
  QCOMPARE(run.messages.shown, Messages{MessageId::notConjugable});
}

void StartUpSuite::theDevelopersButtonsAreOutOfReach() {
  ProgramRun run(*home_);
  run.program.start();
  for (const char* name : {"Command1", "Command3"}) {
    auto& button = run.widget<QPushButton>(name);
    QVERIFY(!button.isVisible());
    QVERIFY(button.shortcut().isEmpty());
  }
}

void StartUpSuite::theDevelopersToolsWork() {
  home_->write("Werbolin.cfg", "1\r\n0\r\n0\r\n0\r\n10\r\n");
  home_->write("Czasowniki.dat", testing::lineOf("aimer"));
  std::filesystem::create_directory(home_->path() / "teksty");
  home_->write("teksty/196.txt", "a\n");
  ProgramRun run(*home_);
  run.program.start();
  run.widget<QPushButton>("Command1").click();
  run.widget<QPushButton>("Command3").click();
  QVERIFY(QString::fromStdString(home_->read("odmiana.rc")).startsWith("3000"));
  QVERIFY(home_->read("odmiana.rc").find("\"aimer\"") != std::string::npos);
  QVERIFY(!home_->read("teksty/Połącz.txt").empty());
}

std::unique_ptr<QObject> startUpSuite() { return std::make_unique<StartUpSuite>(); }

}  // namespace odmiennik::window_test

#include "start_up_test.moc"
