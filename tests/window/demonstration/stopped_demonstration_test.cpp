// SPDX-License-Identifier: GPL-3.0-or-later
// A demonstration that the user stops: what he stops it with does nothing else, all is as before.
#include <QSignalSpy>

#include "tests/window/demonstrated_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class StoppedDemonstrationSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { shown_ = std::make_unique<DemonstratedProgram>(); }
  void cleanup() { shown_.reset(); }

  void aKeyStopsIt();
  void aMouseButtonStopsIt();
  void aShortcutStopsItAndDoesNothingElse();
  void stoppedAmongTheLettersTheTextComesBack();
  void stoppedInTheListTheListIsClosed();

 private:
  std::unique_ptr<DemonstratedProgram> shown_;
};

void StoppedDemonstrationSuite::aKeyStopsIt() {
  shown_->runner.run(0);
  QTest::keyClick(&shown_->entry(), Qt::Key_X);
  QVERIFY(!shown_->runner.isRunning());
  QCOMPARE(shown_->entry().text(), "infinitif");
  shown_->verifyAtRest();
}

void StoppedDemonstrationSuite::aMouseButtonStopsIt() {
  QSignalSpy finished(&shown_->runner, &app::DemonstrationRunner::finished);
  shown_->runner.run(1);
  QTest::mouseClick(&shown_->widget<QPushButton>("cmdOdmień"), Qt::LeftButton);
  QVERIFY(!shown_->runner.isRunning());
  QCOMPARE(finished.size(), 1);
  QCoreApplication::processEvents();
  QCOMPARE(shown_->form(0), "");  // the button that stopped it was not clicked
  shown_->verifyAtRest();
}

void StoppedDemonstrationSuite::aShortcutStopsItAndDoesNothingElse() {
  QAction command;
  command.setShortcut(Qt::Key_F5);
  shown_->window.addAction(&command);
  QSignalSpy commanded(&command, &QAction::triggered);
  shown_->runner.run(0);
  QTest::keyClick(&shown_->entry(), Qt::Key_F5);
  QVERIFY(!shown_->runner.isRunning());
  QVERIFY(commanded.isEmpty());
  QTest::keyClick(&shown_->entry(), Qt::Key_F5);
  QCOMPARE(commanded.size(), 1);
}

void StoppedDemonstrationSuite::stoppedAmongTheLettersTheTextComesBack() {
  connect(&shown_->entry(), &QLineEdit::textChanged, &shown_->runner, [&](const QString& text) {
    if (text != "cha") return;
    QMetaObject::invokeMethod(
        &shown_->runner, [&] { QTest::keyClick(&shown_->entry(), Qt::Key_Escape); },
        Qt::QueuedConnection);
  });
  shown_->toItsEnd(0);
  QCOMPARE(shown_->entry().text(), "infinitif");
  QCOMPARE(shown_->form(0), "");
  shown_->verifyAtRest();
}

void StoppedDemonstrationSuite::stoppedInTheListTheListIsClosed() {
  shown_->runner.setPace(0.2);  // slow enough for the list to be seen
  shown_->runner.run(1);
  QTRY_VERIFY_WITH_TIMEOUT(shown_->list() != nullptr && shown_->list()->isVisible(),
                           kDemonstrationLimit);
  QVERIFY(shown_->runner.isRunning());
  QTest::mouseClick(shown_->list(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
  QVERIFY(!shown_->runner.isRunning());
  shown_->verifyAtRest();
}

std::unique_ptr<QObject> stoppedDemonstrationSuite() {
  return std::make_unique<StoppedDemonstrationSuite>();
}

}  // namespace odmiennik::window_test

#include "stopped_demonstration_test.moc"
