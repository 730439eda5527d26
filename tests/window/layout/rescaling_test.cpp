// SPDX-License-Identifier: GPL-3.0-or-later
// The layout follows the window's size.
#include <QApplication>
#include <QDebug>
#include <QLabel>
#include <chrono>

#include "app/common/text.h"
#include "tests/window/scaled_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

// The control of the layout that belongs to a row.
const app::LayoutControl& control(const app::Layout& layout, std::size_t row) {
  return layout.controls.at(row - 1);
}

// Where every control stands, and in which letters.
QStringList placesOf(const ScaledProgram& program) {
  QStringList places;
  for (const QWidget* widget : program.surface().findChildren<QWidget*>())
    places += QDebug::toString(widget->objectName()) + QDebug::toString(widget->geometry()) +
              widget->font().toString();
  return places;
}

// As resizeTo(), without its pauses.
bool takeStep(const ScaledProgram& program, QSize size) {
  const QSize rest = program.window.size() - program.surface().size();
  program.window.resize(size + rest);
  const app::TwipSize wanted{size.width() * 15, size.height() * 15};
  return QTest::qWaitFor([&] { return program.layout().design == wanted; });
}

QTimer& endOfDrag(const ScaledProgram& program) {
  auto* timer = program.window.scaling().findChild<QTimer*>("dragEnd");
  if (timer == nullptr) qFatal("no end of a drag");
  return *timer;
}

}  // namespace

class RescalingSuite : public QObject {
  Q_OBJECT

 private slots:
  void theWindowStartsAsDesigned();
  void theSameSizeChangesNothingAndAsksNothing();
  void everyWidgetStandsWhereTheArithmeticPutsIt();
  void theFontsFollowTheHeight();
  void aBoxHasAWholeSizeAndAShapeAFraction();
  void deliberateAControlWithoutATagKeepsItsPlaceThoughItGrows();
  void theResizesOfOneDragAreRescaledTogether();
  void maximisingAndRestoringRescaleAtOnce();
  void aMinimisedWindowIsLeftAlone();
  void restoredFromMinimisedToItsSizeItIsNotRescaled();
  void thePronounsStandBeforeTheirBoxes();
  void aDragOutAndBackLeavesEveryControlWhereItWas_data();
  void aDragOutAndBackLeavesEveryControlWhereItWas();
  void aPauseEndsTheDrag();
  void theLayoutIsNotAnimated();
};

void RescalingSuite::theWindowStartsAsDesigned() {
  const ScaledProgram program;
  QCOMPARE(program.surface().size(), program.designed());
  QCOMPARE(program.layout().design, (app::TwipSize{11970, 8220}));
  QVERIFY(program.messages.shown.empty());
}

void RescalingSuite::theSameSizeChangesNothingAndAsksNothing() {
  const ScaledProgram program;
  QVERIFY(program.window.scaling().rescale());
  QCOMPARE(program.layout().horizontalFactor, 1.0F);
  QCOMPARE(program.box(0).geometry(),
           app::place(app::kMainWindow[app::positionOf("txtCzasownik", 0)]));
  QVERIFY(program.messages.shown.empty());
}

void RescalingSuite::everyWidgetStandsWhereTheArithmeticPutsIt() {
  const ScaledProgram program;
  program.resizeTo({1000, 701});
  app::Layout expected = app::designedLayout();
  QCOMPARE(app::RescaleLayout(expected, {15000, 10515}, {}, [] { return true; }),
           app::Rescaled::rescaled);
  const std::size_t box = app::positionOf("txtCzasownik", 42);
  const app::LayoutControl& wanted = control(expected, box);
  QCOMPARE(wanted.width, std::trunc(1545 * (15000.0F / 11970)));
  QCOMPARE(control(program.layout(), box).height, wanted.height);
  QCOMPARE(program.box(42).geometry(),
           app::place({wanted.left, wanted.top, wanted.width, wanted.height}));
  const QWidget& button = program.widget<QWidget>(QString::fromUtf8("cmdOdmień"));
  QCOMPARE(button.x(), qRound(10335 * (1000.0 / 798) / 15));
  QCOMPARE(button.y(), qRound(7740 * (701.0 / 548) / 15));
}

void RescalingSuite::theFontsFollowTheHeight() {
  const ScaledProgram program;
  const auto pixelsOf = [&program](const char* name) {
    return program.widget<QWidget>(QString::fromUtf8(name)).font().pixelSize();
  };
  QCOMPARE(pixelsOf("txtCzasownik_0"), 11);
  program.resizeTo({798 * 2, 548 * 2});
  QCOMPARE(pixelsOf("txtCzasownik_0"), 22);
  QCOMPARE(pixelsOf("lblTryb_0"), 26);
  QCOMPARE(pixelsOf("lblGrupaWartość"), 22);
  QCOMPARE(program.surface().font().pixelSize(), 22);
  program.resizeTo({798 * 2, 548});
  QCOMPARE(pixelsOf("txtCzasownik_0"), 11);
}

void RescalingSuite::aBoxHasAWholeSizeAndAShapeAFraction() {
  const ScaledProgram program;
  program.resizeTo({1001, 701});
  const app::LayoutControl& box = control(program.layout(), app::positionOf("txtCzasownik", 0));
  const app::LayoutControl& rule = control(program.layout(), app::positionOf("shpLiniaTrybu", 0));
  QCOMPARE(box.width, std::trunc(box.width));
  QVERIFY(rule.width != std::trunc(rule.width));
}

// No control of this window is without a tag, so one is put beside them.
void RescalingSuite::deliberateAControlWithoutATagKeepsItsPlaceThoughItGrows() {
  app::Layout layout = app::designedLayout();
  layout.controls = {{.name = "txtCzasownik", .left = 150, .top = 90, .width = 300, .height = 30}};
  QCOMPARE(app::RescaleLayout(layout, {23940, 16440}, {}, [] { return true; }),
           app::Rescaled::rescaled);
  QCOMPARE(layout.controls[0].left, 150.0F);
  QCOMPARE(layout.controls[0].top, 90.0F);
  QCOMPARE(layout.controls[0].width, 600.0F);
}

void RescalingSuite::theResizesOfOneDragAreRescaledTogether() {
  const ScaledProgram program;
  const QSize rest = program.window.size() - program.surface().size();
  for (int width = 800; width < 1000; width += 7) program.window.resize(QSize(width, 600) + rest);
  QCOMPARE(program.layout().design.width, 11970);
  program.resizeTo({1000, 600});
  QCOMPARE(program.layout().horizontalFactor, 15000.0F / 11970);
}

void RescalingSuite::maximisingAndRestoringRescaleAtOnce() {
  const ScaledProgram program;
  const QSize before = program.surface().size();
  program.window.setWindowState(Qt::WindowMaximized);
  QTRY_VERIFY(program.surface().size() != before);
  QCOMPARE(program.layout().design.height, program.surface().height() * 15);
  program.window.setWindowState(Qt::WindowNoState);
  QTRY_COMPARE(program.surface().size(), before);
  QCOMPARE(program.layout().design.height, before.height() * 15);
}

void RescalingSuite::aMinimisedWindowIsLeftAlone() {
  const ScaledProgram program;
  program.window.showMinimized();
  QTRY_VERIFY(program.window.isMinimized());
  program.window.resize(900, 640);
  QVERIFY(program.window.scaling().rescale());
  QCOMPARE(program.layout().design, (app::TwipSize{11970, 8220}));
}

void RescalingSuite::restoredFromMinimisedToItsSizeItIsNotRescaled() {
  const ScaledProgram program;
  program.window.showMinimized();
  QTRY_VERIFY(program.window.isMinimized());
  program.window.showNormal();
  QTRY_VERIFY(!program.window.isMinimized());
  QVERIFY(program.window.scaling().rescale());
  QCOMPARE(program.layout().horizontalFactor, 1.0F);
  QCOMPARE(program.surface().size(), program.designed());
}

// Painted pronouns are looked for where they have to be: between the box and its left neighbour.
void RescalingSuite::thePronounsStandBeforeTheirBoxes() {
  ScaledProgram program;
  program.resizeTo({1197, 822});
  const auto inkBefore = [&program](int slot) {
    const QRect box = program.box(slot).geometry();
    const QRect gap(box.left() - 22, box.top(), 22, box.height());
    const QImage image = program.surface().grab(gap).toImage();
    int ink = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) ink += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
    return ink;
  };
  QVERIFY(inkBefore(0) > 0);
  QVERIFY(inkBefore(89) > 0);
  QCOMPARE(inkBefore(96), 0);
}

void RescalingSuite::aDragOutAndBackLeavesEveryControlWhereItWas_data() {
  QTest::addColumn<QSize>("step");
  QTest::newRow("wider and higher") << QSize(4, 3);
  QTest::newRow("narrower and higher") << QSize(-1, 3);
}

// However slow the machine is, the steps are those of one drag.
void RescalingSuite::aDragOutAndBackLeavesEveryControlWhereItWas() {
  QFETCH(QSize, step);
  QApplication::setCursorFlashTime(0);
  const ScaledProgram program;
  program.conjugate("s'entr'apprendre");
  endOfDrag(program).setInterval(std::chrono::hours(1));
  const QStringList places = placesOf(program);
  const QImage picture = program.surface().grab().toImage();
  for (int way = 1; way <= 200; ++way)
    QVERIFY(takeStep(program, program.designed() + step * (way <= 100 ? way : 200 - way)));
  QCOMPARE(placesOf(program), places);
  QCOMPARE(program.surface().grab().toImage(), picture);
}

void RescalingSuite::aPauseEndsTheDrag() {
  const ScaledProgram program;
  program.resizeTo({1000, 701});
  QVERIFY(endOfDrag(program).isActive());
  QCOMPARE(endOfDrag(program).interval(), 300);
  QTRY_VERIFY(!endOfDrag(program).isActive());
  app::Layout expected = program.layout();
  program.resizeTo({1100, 650});
  QCOMPARE(app::resizeLayout(expected, {16500, 9750}, false, {}, [] { return true; }),
           app::Rescaled::rescaled);
  const std::size_t box = app::positionOf("txtCzasownik", 42);
  QCOMPARE(control(program.layout(), box).width, control(expected, box).width);
  QCOMPARE(program.layout().horizontalFactor, 16500 / 15000.0F);
}

void RescalingSuite::theLayoutIsNotAnimated() {
  const ScaledProgram program;
  QVERIFY(!program.window.isAnimated());
}

std::unique_ptr<QObject> rescalingSuite() { return std::make_unique<RescalingSuite>(); }

}  // namespace odmiennik::window_test

#include "rescaling_test.moc"
