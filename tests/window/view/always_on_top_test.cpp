// SPDX-License-Identifier: GPL-3.0-or-later
// The command "Zawsze na wierzchu".
#include <QScreen>
#include <QWindow>

#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class AlwaysOnTopSuite : public QObject {
  Q_OBJECT

 private slots:
  void everyStartBeginsUnchecked();
  void checkedItLaysTheWindowOverTheScreenAboveAllOthers();
  void deliberateUncheckedItMovesTheWindowToTheCornerOfTheScreen();
  void theLayoutFollows();
  void theWindowIsNotMadeAnew();

 private:
  // Chooses the item and waits until the window's place has changed.
  static void choose(const ProgramUnderTest& program, bool isOnTop) {
    program.item("mnuWidokNaWierzchu").trigger();
    QCOMPARE(program.item("mnuWidokNaWierzchu").isChecked(), isOnTop);
    QTRY_COMPARE(program.window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint),
                 isOnTop);
  }
};

void AlwaysOnTopSuite::everyStartBeginsUnchecked() {
  const ProgramUnderTest program;
  const QAction& item = program.item("mnuWidokNaWierzchu");
  QVERIFY(item.isEnabled() && item.isCheckable() && !item.isChecked());
}

void AlwaysOnTopSuite::checkedItLaysTheWindowOverTheScreenAboveAllOthers() {
  const ProgramUnderTest program;
  choose(program, true);
  const QRect expected(QPoint(-4, -4), program.window.screen()->size());
  QTRY_COMPARE(program.window.frameGeometry(), expected);
  QVERIFY(program.window.isVisible());
}

void AlwaysOnTopSuite::deliberateUncheckedItMovesTheWindowToTheCornerOfTheScreen() {
  const ProgramUnderTest program;
  choose(program, true);
  choose(program, false);
  const QRect expected(QPoint(0, 0), program.window.screen()->size());
  QTRY_COMPARE(program.window.frameGeometry(), expected);
}

void AlwaysOnTopSuite::theLayoutFollows() {
  const ProgramUnderTest program;
  choose(program, true);
  QTRY_VERIFY(program.window.scaling().layout().verticalFactor > 1);
  const QWidget& surface = *program.window.centralWidget();
  QCOMPARE(program.window.scaling().layout().design.height, surface.height() * 15);
}

void AlwaysOnTopSuite::theWindowIsNotMadeAnew() {
  const ProgramUnderTest program;
  const WId before = program.window.winId();
  choose(program, true);
  choose(program, false);
  QCOMPARE(program.window.winId(), before);
}

std::unique_ptr<QObject> alwaysOnTopSuite() { return std::make_unique<AlwaysOnTopSuite>(); }

}  // namespace odmiennik::window_test

#include "always_on_top_test.moc"
