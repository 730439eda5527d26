// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the tip of the day.
#include "app/common/text.h"
#include "app/logic/tips.h"
#include "app/tips/tip_window.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

QString tip(int number) { return app::fromUtf8(app::tipText(number, "\n")); }

template <typename Widget>
Widget& part(const QDialog& window, const char* name) {
  auto* found = window.findChild<Widget*>(QString::fromUtf8(name));
  if (found == nullptr) qFatal("no control %s", name);
  return *found;
}

QString shownTip(const QDialog& window) { return part<QLabel>(window, "lblTipText").text(); }

bool hasDemonstrations(const QDialog& window) {
  const bool first = part<QPushButton>(window, "cmdPokaż_0").isVisible();
  return first && part<QPushButton>(window, "cmdPokaż_1").isVisible();
}

}  // namespace

class TipSuite : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void theWindowSpeaksPolish();
  void everyTipCanBeDrawn();
  void nextShowsAnotherTip();
  void aForcedTipIsTheHowToOnce();
  void theDemonstrationsStayHiddenUntilThereIsOne();
  void theDemonstrationsStandBesideTheHowToAlone();
  void aDemonstrationStartsOnceTheTipIsClosed();
  void breaksOfLinesAreShown();
  void everyTipHasRoom();
  void theCheckBoxShowsTheSetting();
  void theCheckBoxWritesAtOnce();
  void switchedOffTheTipIsMissingAtTheNextStart();
  void okAndEscapeCloseTheWindow();
  void theHelpMenuOpensIt();
  void theHowToOfTheHelpMenuIsTipFive();
  void twoCommandsOpenOneWindow();

 private:
  std::unique_ptr<ProgramHome> home_;
  std::unique_ptr<ProgramRun> run_;
  bool isForced_ = false;
  double random_ = 0;
  std::unique_ptr<app::TipWindow> open() {
    auto window = std::make_unique<app::TipWindow>(nullptr, home_->store, isForced_,
                                                   [this] { return random_; });
    window->show();
    return window;
  }
};

void TipSuite::init() {
  home_ = std::make_unique<ProgramHome>();
  run_ = std::make_unique<ProgramRun>(*home_);
  run_->program.start();
  isForced_ = false;
  random_ = 0;
}

void TipSuite::cleanup() {
  run_.reset();
  home_.reset();
}

void TipSuite::theWindowSpeaksPolish() {
  const auto window = open();
  QCOMPARE(window->objectName(), "frmTip");
  QCOMPARE(window->windowTitle(), "Porada dnia");
  QVERIFY(window->isModal());
  QCOMPARE(part<QLabel>(*window, "lblNagłówek").text(), "Czy wiesz, że…");
  QCOMPARE(part<QPushButton>(*window, "cmdNextTip").text(), "&Następna");
  QCOMPARE(part<QPushButton>(*window, "cmdOK").text(), "OK");
  QCOMPARE(part<QCheckBox>(*window, "chkLoadTipsAtStartup").text(),
           "&Wyświetlaj przy uruchamianiu");
  QCOMPARE(part<QPushButton>(*window, "cmdPokaż_0").text(), "&Pokaż 1!");
  QCOMPARE(part<QPushButton>(*window, "cmdPokaż_1").text(), "&Pokaż 2!");
}

void TipSuite::everyTipCanBeDrawn() {
  const auto window = open();
  QSet<QString> tips;
  for (int number = 1; number <= 21; ++number) {
    random_ = (number - 0.5) / 21;
    window->DisplayCurrentTip();
    QCOMPARE(shownTip(*window), tip(number));
    QVERIFY(shownTip(*window).endsWith('?'));
    tips.insert(shownTip(*window));
  }
  QCOMPARE(tips.size(), 21);
}

// deliberate: no history is kept, so that the same tip may come twice.
void TipSuite::nextShowsAnotherTip() {
  const auto window = open();
  QCOMPARE(shownTip(*window), tip(1));
  part<QPushButton>(*window, "cmdNextTip").click();
  QCOMPARE(shownTip(*window), tip(1));
  random_ = 0.99;
  part<QPushButton>(*window, "cmdNextTip").click();
  QCOMPARE(shownTip(*window), tip(21));
}

void TipSuite::aForcedTipIsTheHowToOnce() {
  isForced_ = true;
  const auto window = open();
  QCOMPARE(shownTip(*window), tip(5));
  QVERIFY(!isForced_);
  part<QPushButton>(*window, "cmdNextTip").click();
  QCOMPARE(shownTip(*window), tip(1));
}

void TipSuite::theDemonstrationsStayHiddenUntilThereIsOne() {
  isForced_ = true;
  const auto window = open();
  QVERIFY(!part<QPushButton>(*window, "cmdPokaż_0").isVisible());
  QVERIFY(!part<QPushButton>(*window, "cmdPokaż_1").isVisible());
}

void TipSuite::theDemonstrationsStandBesideTheHowToAlone() {
  isForced_ = true;
  const auto window = open();
  window->offerDemonstrations([] {});
  QVERIFY(hasDemonstrations(*window));
  window->DisplayCurrentTip();
  QVERIFY(!hasDemonstrations(*window));
  random_ = 4.5 / 21;
  part<QPushButton>(*window, "cmdNextTip").click();
  QCOMPARE(shownTip(*window), tip(5));
  QVERIFY(hasDemonstrations(*window));
}

void TipSuite::aDemonstrationStartsOnceTheTipIsClosed() {
  const app::DemonstrationRunner& demonstration = run_->program.demonstration();
  bool isAnnouncedOverTheTip = false;
  run_->messages.whileShown = [&] {
    isAnnouncedOverTheTip = QApplication::activeModalWidget() != nullptr;
  };
  bool isRunningBehindTheTip = false;
  ModalVisitor visitor([&](QDialog& tip) {
    part<QPushButton>(tip, "cmdPokaż_1").click();
    isRunningBehindTheTip = demonstration.isRunning();
  });
  run_->program.tips().showHowTo();
  QCOMPARE(run_->messages.shown, std::vector{dictionary::MessageId::demonstrationWillRun});
  QVERIFY(isAnnouncedOverTheTip);
  QVERIFY(!isRunningBehindTheTip);
  QVERIFY(demonstration.isRunning());
}

void TipSuite::breaksOfLinesAreShown() {
  isForced_ = true;
  const auto window = open();
  QVERIFY(shownTip(*window).contains('\n'));
  QVERIFY(!shownTip(*window).contains("/n"));
}

void TipSuite::everyTipHasRoom() {
  const auto window = open();
  const auto& label = part<QLabel>(*window, "lblTipText");
  for (int number = 1; number <= 21; ++number) {
    random_ = (number - 0.5) / 21;
    window->DisplayCurrentTip();
    QVERIFY2(label.heightForWidth(label.width()) <= label.height(), qPrintable(label.text()));
  }
}

void TipSuite::theCheckBoxShowsTheSetting() {
  QVERIFY(!part<QCheckBox>(*open(), "chkLoadTipsAtStartup").isChecked());
  home_->store.setTipShownAtStart(true);
  QVERIFY(part<QCheckBox>(*open(), "chkLoadTipsAtStartup").isChecked());
}

void TipSuite::theCheckBoxWritesAtOnce() {
  const auto window = open();
  part<QCheckBox>(*window, "chkLoadTipsAtStartup").click();
  QVERIFY(home_->store.isTipShownAtStart());
  part<QCheckBox>(*window, "chkLoadTipsAtStartup").click();
  QVERIFY(!home_->store.isTipShownAtStart());
  QVERIFY(window->isVisible());
}

void TipSuite::switchedOffTheTipIsMissingAtTheNextStart() {
  home_->store.setTipShownAtStart(true);
  ModalVisitor visitor(
      [](QDialog& dialog) { part<QCheckBox>(dialog, "chkLoadTipsAtStartup").click(); });
  ProgramRun(*home_).program.start();
  QCOMPARE(visitor.visits, 1);
  ProgramRun(*home_).program.start();
  QCOMPARE(visitor.visits, 1);
}

void TipSuite::okAndEscapeCloseTheWindow() {
  const auto first = open();
  part<QPushButton>(*first, "cmdOK").click();
  QVERIFY(!first->isVisible());
  const auto second = open();
  QTest::keyClick(second.get(), Qt::Key_Escape);
  QVERIFY(!second->isVisible());
}

void TipSuite::theHelpMenuOpensIt() {
  QString name;
  ModalVisitor visitor([&](QDialog& dialog) { name = dialog.objectName(); });
  app::menuItem(*run_->program.window().menuBar(), "mnuPomocPoradaDnia").trigger();
  QTRY_COMPARE(visitor.visits, 1);
  QCOMPARE(name, "frmTip");
}

void TipSuite::theHowToOfTheHelpMenuIsTipFive() {
  QString text;
  ModalVisitor visitor([&](QDialog& dialog) { text = shownTip(dialog); });
  app::menuItem(*run_->program.window().menuBar(), "mnuPomocJak").trigger();
  QTRY_COMPARE(visitor.visits, 1);
  QCOMPARE(text, tip(5));
}

void TipSuite::twoCommandsOpenOneWindow() {
  ModalVisitor visitor([](QDialog&) {});
  auto& item = app::menuItem(*run_->program.window().menuBar(), "mnuPomocPoradaDnia");
  QMetaObject::invokeMethod(
      &item, [&] { item.trigger(); }, Qt::QueuedConnection);
  item.trigger();
  QTRY_COMPARE(visitor.visits, 1);
  QCoreApplication::processEvents();
  QCOMPARE(visitor.visits, 1);
}

std::unique_ptr<QObject> tipSuite() { return std::make_unique<TipSuite>(); }

}  // namespace odmiennik::window_test

#include "tip_test.moc"
