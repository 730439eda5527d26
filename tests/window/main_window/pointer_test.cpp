// SPDX-License-Identifier: GPL-3.0-or-later
// The pointers that the window shows: while it starts, over itself and over the headings.
#include "app/main_window/cursors.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

QImage pointerOf(const QWidget& widget) { return widget.cursor().pixmap().toImage(); }

}  // namespace

class PointerSuite : public QObject {
  Q_OBJECT

 private slots:
  void thePointerIsAnHourglassUntilTheStartIsOver();
  void theWindowHasAnArrowOfItsOwn();
  void aHandPointsAtTheHeadingsThatOpenAPage();
  void theDrawnPointersDiffer();
};

// A damaged settings file stops the start at a message, where the pointer can be looked at.
void PointerSuite::thePointerIsAnHourglassUntilTheStartIsOver() {
  ProgramHome home;
  home.write("Werbolin.cfg", "x");
  ProgramRun run(home);
  QImage whileStarting;
  run.messages.whileShown = [&] { whileStarting = pointerOf(run.program.window()); };
  run.program.start();
  QCOMPARE(whileStarting, app::hourglassCursor().pixmap().toImage());
  QCOMPARE(pointerOf(run.program.window()), app::arrowCursor().pixmap().toImage());
}

void PointerSuite::theWindowHasAnArrowOfItsOwn() {
  const QCursor arrow = app::arrowCursor();
  QCOMPARE(arrow.shape(), Qt::BitmapCursor);
  QCOMPARE(arrow.pixmap().deviceIndependentSize(), QSizeF(32, 32));
  QVERIFY(arrow.pixmap().toImage().pixelColor(arrow.hotSpot() + QPoint(1, 3)).alpha() == 255);
}

void PointerSuite::aHandPointsAtTheHeadingsThatOpenAPage() {
  ProgramHome home;
  ProgramRun run(home);
  run.program.start();
  const QImage hand = app::handCursor().pixmap().toImage();
  for (int heading = 0; heading < 21; ++heading) {
    const auto& label = run.widget<QLabel>(qPrintable(QString("lblCzas_%1").arg(heading)));
    const bool isHand = pointerOf(label) == hand;
    QVERIFY2(isHand == (heading <= 16), qPrintable(label.objectName()));
  }
}

void PointerSuite::theDrawnPointersDiffer() {
  const QCursor hand = app::handCursor();
  QVERIFY(hand.pixmap().toImage() != app::arrowCursor().pixmap().toImage());
  QVERIFY(app::hourglassCursor().pixmap().toImage() != app::arrowCursor().pixmap().toImage());
  QVERIFY(hand.pixmap().toImage().pixelColor(hand.hotSpot()).alpha() > 0);
}

std::unique_ptr<QObject> pointerSuite() { return std::make_unique<PointerSuite>(); }

}  // namespace odmiennik::window_test

#include "pointer_test.moc"
