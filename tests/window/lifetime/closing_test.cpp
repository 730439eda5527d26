// SPDX-License-Identifier: GPL-3.0-or-later
// What closing the program asks, saves and ends.
#include <QCloseEvent>
#include <QGuiApplication>
#include <QTemporaryFile>
#include <cstdio>

#include <unistd.h>

#include "tests/unit/dictionary/faulty_files.h"
#include "tests/window/edited_program.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;
using Messages = std::vector<MessageId>;

constexpr char kBefore[] = "0\r\n255\r\n65280\r\n41\r\n1112\r\n";

// What is written to standard error while something is done.
QByteArray toldStandardError(const std::function<void()>& doing) {
  QTemporaryFile file;
  if (!file.open()) qFatal("no file to write to");
  std::fflush(stderr);
  const int before = ::dup(STDERR_FILENO);
  ::dup2(file.handle(), STDERR_FILENO);
  doing();
  std::fflush(stderr);
  ::dup2(before, STDERR_FILENO);
  ::close(before);
  file.seek(0);
  return file.readAll();
}

}  // namespace

class ClosingSuite : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void noIsTheDefaultAnswer();
  void answeredNoTheWindowStaysAndNothingIsSaved();
  void answeredYesTheSettingsAreSavedAndTheProgramEnds();
  void noThenYesAsksTwice();
  void koniecAsksToo();
  void aSecondRequestBehindTheQuestionIsPassedOver();
  void aClosedProgramIsNotClosedAgain();
  void theSaveQuestionComesAfterTheExitQuestion();
  void anEditedVerbIsNotAskedAboutWhenTheUserStays();
  void aRefusedSaveKeepsTheWindow();
  void anEndingSessionAsksNothing();
  void anEndingSessionAsksAboutAnEditedVerbOnce();
  void anEndingSessionThatMayNotBeAskedSavesTheSettings();
  void aRefusedSaveStopsTheEndOfTheSession();
  void aTerminationSavesTheSettingsOnceAndEndsWithoutAQuestion();
  void aTerminationThatCannotSaveTheSettingsTellsStandardErrorAndEnds();
  void aSessionThatGoesOnAsksAgain();
  void aSessionThatGoesOnAsksAboutTheEditedVerbAgain();

 private:
  void editVerb();
  app::MainWindow& window() { return run_->program.window(); }

  std::unique_ptr<ProgramHome> home_;
  std::unique_ptr<ProgramRun> run_;
};

void ClosingSuite::init() {
  home_ = std::make_unique<ProgramHome>();
  home_->write("Werbolin.cfg", kBefore);
  run_ = std::make_unique<ProgramRun>(*home_);
  run_->program.start();
}

void ClosingSuite::cleanup() {
  run_.reset();
  home_.reset();
}

void ClosingSuite::noIsTheDefaultAnswer() {
  const dictionary::MessageRow& question = dictionary::row(MessageId::endProgram);
  QCOMPARE(question.defaultButton, Button::no);
  QCOMPARE(question.buttons, Button::yes | Button::no);
  QCOMPARE(question.icon, dictionary::Icon::question);
  QCOMPARE(dictionary::messageText(MessageId::endProgram),
           Utf8Text("Czy na pewno chcesz zakończyć program?"));
}

void ClosingSuite::answeredNoTheWindowStaysAndNothingIsSaved() {
  run_->messages.answer = Button::no;
  run_->conjugate("parler");
  QVERIFY(!window().close());
  QCOMPARE(run_->messages.shown, Messages{MessageId::endProgram});
  QVERIFY(window().isVisible());
  QCOMPARE(home_->settings(), kBefore);
  QCOMPARE(run_->ends, 0);
}

void ClosingSuite::answeredYesTheSettingsAreSavedAndTheProgramEnds() {
  QVERIFY(window().close());
  QVERIFY(!window().isVisible());
  QCOMPARE(home_->setting(5), "1113");
  QCOMPARE(run_->ends, 1);
}

void ClosingSuite::noThenYesAsksTwice() {
  run_->messages.answer = Button::no;
  QVERIFY(!window().close());
  run_->messages.answer = Button::yes;
  QVERIFY(window().close());
  QCOMPARE(run_->messages.shown, (Messages{MessageId::endProgram, MessageId::endProgram}));
  QCOMPARE(run_->ends, 1);
}

void ClosingSuite::koniecAsksToo() {
  app::menuItem(*window().menuBar(), "mnuPlikKoniec").trigger();
  QTRY_COMPARE(run_->ends, 1);
  QCOMPARE(run_->messages.shown, Messages{MessageId::endProgram});
}

void ClosingSuite::aSecondRequestBehindTheQuestionIsPassedOver() {
  bool isSecondAccepted = true;
  run_->messages.whileShown = [&] {
    QCloseEvent second;
    QApplication::sendEvent(&window(), &second);
    isSecondAccepted = second.isAccepted();
  };
  QVERIFY(window().close());
  QVERIFY(!isSecondAccepted);
  QCOMPARE(run_->messages.shown.size(), 1U);
  QCOMPARE(run_->ends, 1);
}

void ClosingSuite::aClosedProgramIsNotClosedAgain() {
  QVERIFY(window().close());
  QCloseEvent again;
  QApplication::sendEvent(&window(), &again);
  QVERIFY(again.isAccepted());
  QCOMPARE(run_->messages.shown.size(), 1U);
  QCOMPARE(run_->ends, 1);
}

// A verb with a form of the user's that is not saved.
void ClosingSuite::editVerb() {
  run_->conjugate("parler");
  QVERIFY(run_->program.editing().edit());
  run_->widget<QLineEdit>("txtCzasownik_0").setText("parlix");
  run_->messages.shown.clear();
}

void ClosingSuite::theSaveQuestionComesAfterTheExitQuestion() {
  editVerb();
  QVERIFY(window().close());
  QCOMPARE(run_->messages.shown, (Messages{MessageId::endProgram, MessageId::saveEditedVerb}));
}

void ClosingSuite::anEditedVerbIsNotAskedAboutWhenTheUserStays() {
  editVerb();
  run_->messages.answer = Button::no;
  QVERIFY(!window().close());
  QCOMPARE(run_->messages.shown, Messages{MessageId::endProgram});
}

void ClosingSuite::aRefusedSaveKeepsTheWindow() {
  editVerb();
  run_->entry().clear();  // a verb without an infinitive is not saved
  QVERIFY(!window().close());
  QVERIFY(window().isVisible());
  QCOMPARE(home_->settings(), kBefore);
  QCOMPARE(run_->ends, 0);
}

void ClosingSuite::anEndingSessionAsksNothing() {
  QVERIFY(run_->program.closing().prepareForSessionEnd(true));
  QCOMPARE(home_->setting(5), "1113");
  QVERIFY(window().close());
  QVERIFY(run_->messages.shown.empty());
  QCOMPARE(run_->ends, 1);
}

void ClosingSuite::anEndingSessionAsksAboutAnEditedVerbOnce() {
  editVerb();
  QVERIFY(run_->program.closing().prepareForSessionEnd(true));
  QVERIFY(window().close());
  QCOMPARE(run_->messages.shown, Messages{MessageId::saveEditedVerb});
}

void ClosingSuite::anEndingSessionThatMayNotBeAskedSavesTheSettings() {
  editVerb();
  QVERIFY(run_->program.closing().prepareForSessionEnd(false));
  QVERIFY(run_->messages.shown.empty());
  QCOMPARE(home_->setting(5), "1113");
}

void ClosingSuite::aRefusedSaveStopsTheEndOfTheSession() {
  editVerb();
  run_->entry().clear();
  QVERIFY(!run_->program.closing().prepareForSessionEnd(true));
  QVERIFY(window().isVisible());
  QCOMPARE(home_->settings(), kBefore);
}

void ClosingSuite::aSessionThatGoesOnAsksAgain() {
  QVERIFY(run_->program.closing().prepareForSessionEnd(true));
  QTest::keyClick(&run_->entry(), Qt::Key_Right);
  QVERIFY(window().close());
  QCOMPARE(run_->messages.shown, Messages{MessageId::endProgram});
}

// Changes that were given up for the end of the session are changes again.
void ClosingSuite::aSessionThatGoesOnAsksAboutTheEditedVerbAgain() {
  EditedProgram program;
  program.edit("parler");
  program.box(0).setText("parlix");
  program.messages.answer = Button::no;
  QVERIFY(program.program.closing().prepareForSessionEnd(true));
  QTest::keyClick(&program.box(1), Qt::Key_Right);
  program.messages.shown.clear();
  program.trigger("mnuEdycjaOdmień");
  QCOMPARE(program.messages.shown, Messages{MessageId::saveEditedVerb});
}

void ClosingSuite::aTerminationSavesTheSettingsOnceAndEndsWithoutAQuestion() {
  run_->program.closing().endNow();
  QCOMPARE(home_->setting(5), "1113");
  run_->program.closing().endNow();
  QCOMPARE(run_->ends, 1);
  QVERIFY(run_->messages.shown.empty());
}

// Nobody may be there to answer a message, and the system does not wait.
void ClosingSuite::aTerminationThatCannotSaveTheSettingsTellsStandardErrorAndEnds() {
  ProgramHome home;
  home.write("Werbolin.cfg", kBefore);
  testing::FaultyFiles readOnly(0);
  ProgramRun run(home, readOnly);
  run.program.start();
  run.messages.shown.clear();
  const QByteArray told = toldStandardError([&run] { run.program.closing().endNow(); });
  QVERIFY2(told.contains("Aktualne ustawienia mogą zostać niezapisane."), told);
  QCOMPARE(told.count('\n'), 1);
  QCOMPARE(run.ends, 1);
  QVERIFY(run.messages.shown.empty());
}

std::unique_ptr<QObject> closingSuite() { return std::make_unique<ClosingSuite>(); }

}  // namespace odmiennik::window_test

#include "closing_test.moc"
