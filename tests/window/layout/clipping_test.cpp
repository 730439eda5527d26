// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever size the window has been given, nothing overlaps and everything can be read.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QStyleOptionButton>
#include <random>

#include "tests/window/scaled_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

// The first widget that overlaps another or cannot be read; empty when there is none.
QString clippedOrOverlapping(const ScaledProgram& program) {
  QList<QWidget*> widgets = program.surface().findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  widgets.removeIf([](const QWidget* widget) {
    return !widget->isVisible() || qobject_cast<const QGroupBox*>(widget) != nullptr;
  });
  for (qsizetype i = 0; i < widgets.size(); ++i) {
    QWidget* widget = widgets[i];
    if (!program.surface().rect().contains(widget->geometry())) return widget->objectName();
    if (widget->fontMetrics().height() > widget->height()) return widget->objectName() + " is low";
    for (qsizetype k = i + 1; k < widgets.size(); ++k)
      if (widget->geometry().intersects(widgets[k]->geometry()))
        return widget->objectName() + " on " + widgets[k]->objectName();
    const auto* label = qobject_cast<QLabel*>(widget);
    if (label != nullptr && label->sizeHint().width() > label->width())
      return label->objectName() + " is narrow";
  }
  return {};
}

}  // namespace

class ClippingSuite : public QObject {
  Q_OBJECT

 private slots:
  void afterFiftyMaximisationsAndFiftyDragsNothingOverlapsOrIsClipped();
  void nothingIsClippedInAnySmallOrNarrowWindow_data();
  void nothingIsClippedInAnySmallOrNarrowWindow();
  void theWindowCannotBecomeTooSmallForItsBoxes();
  void theLongestFormIsReadableWithoutATooltipAt1024By768();
  void everyRuleIsSeenInEverySmallWindow();
  void theInformationFrameBeginsAboveItsFirstLabel();
  void theSquareOfTheCheckBoxGrowsWithItsLetters();
};

void ClippingSuite::afterFiftyMaximisationsAndFiftyDragsNothingOverlapsOrIsClipped() {
  const ScaledProgram program;
  program.conjugate("falloir");
  std::mt19937 random(50);
  std::uniform_int_distribution<int> width(640, 1900), height(450, 1000);
  for (int time = 0; time < 50; ++time) {
    program.maximiseAndRestore();
    program.resizeTo({width(random), height(random)});
    QCOMPARE(clippedOrOverlapping(program), QString());
  }
  program.resizeTo(program.designed());
  QCOMPARE(clippedOrOverlapping(program), QString());
  // Rounding has taken less than a tenth of a box's width, and its letters have their old size.
  QVERIFY(program.box(0).width() > 103 * 0.9);
  QCOMPARE(program.box(0).font().pixelSize(), 11);
}

void ClippingSuite::nothingIsClippedInAnySmallOrNarrowWindow_data() {
  QTest::addColumn<QSize>("size");
  QTest::newRow("smallest") << QSize(599, 411);
  QTest::newRow("narrow") << QSize(600, 900);
  QTest::newRow("low") << QSize(1800, 420);
  QTest::newRow("1366") << QSize(1366, 700);
  QTest::newRow("1920") << QSize(1920, 1010);
}

void ClippingSuite::nothingIsClippedInAnySmallOrNarrowWindow() {
  QFETCH(QSize, size);
  const ScaledProgram program;
  program.conjugate("falloir");
  program.resizeTo(size);
  QCOMPARE(clippedOrOverlapping(program), QString());
}

void ClippingSuite::theWindowCannotBecomeTooSmallForItsBoxes() {
  const ScaledProgram program;
  program.window.resize(10, 10);
  QTRY_COMPARE(program.layout().design.width, 599 * 15);
  QTRY_COMPARE(program.surface().height(), 411);
  QVERIFY(program.box(0).width() >= 75);
}

void ClippingSuite::theLongestFormIsReadableWithoutATooltipAt1024By768() {
  const ScaledProgram program;
  program.conjugate("s'entr'apprendre");
  program.resizeTo({1022, 720});
  QCOMPARE(program.form(87), "nous fussions entr'appris(e)s");
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    QVERIFY2(!program.box(slot).isClipped(), qPrintable(program.form(slot)));
  program.resizeTo(program.designed());
  QVERIFY(program.box(87).isClipped());  // shown as a tooltip
}

// A rule of less than a pixel must not fall between two of them.
void ClippingSuite::everyRuleIsSeenInEverySmallWindow() {
  const ScaledProgram program;
  const QColor mood = program.widget<QLabel>("lblTryb_0").palette().color(QPalette::WindowText);
  for (int height = 411; height < 548; height += 8) {
    program.resizeTo({650, height});
    const QImage picture = program.surface().grab().toImage();
    for (const app::LayoutControl& rule : program.layout().controls) {
      if (rule.name != "shpLiniaTrybu") continue;
      const int x = static_cast<int>((rule.left + rule.width - 30) / app::kTwipsPerPixel);
      const int y = static_cast<int>(rule.top / app::kTwipsPerPixel);
      QVERIFY2(picture.pixelColor(x, y) == mood || picture.pixelColor(x, y + 1) == mood,
               qPrintable(QString("%1 at %2").arg(y).arg(height)));
    }
  }
}

// Looked for near the frame's right end, where neither its title nor a label stands.
void ClippingSuite::theInformationFrameBeginsAboveItsFirstLabel() {
  const ScaledProgram program;
  const QWidget& frame = program.widget<QWidget>("frmInformacjeOCzasowniku");
  const QWidget& label = program.widget<QWidget>("lblGrupa");
  for (const int height : {411, 430, 470, 548, 1010}) {
    program.resizeTo({800, height});
    const QImage picture = program.surface().grab(frame.geometry()).toImage();
    const int x = frame.width() - 10;
    int edge = 0;
    while (edge < picture.height() && picture.pixel(x, edge) == picture.pixel(x, 0)) ++edge;
    QVERIFY2(edge >= frame.fontMetrics().height(), qPrintable(QString::number(height)));
    QVERIFY2(frame.y() + edge < label.y(), qPrintable(QString::number(height)));
  }
}

void ClippingSuite::theSquareOfTheCheckBoxGrowsWithItsLetters() {
  const ScaledProgram program;
  const auto square = [&program] {
    QStyleOptionButton option;
    option.initFrom(&program.auxiliary());
    return program.auxiliary()
        .style()
        ->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &program.auxiliary())
        .height();
  };
  QVERIFY(square() >= 12 && square() <= 14);
  program.resizeTo(program.designed() * 3);
  QVERIFY(square() >= 35 && square() <= program.auxiliary().height());
}

std::unique_ptr<QObject> clippingSuite() { return std::make_unique<ClippingSuite>(); }

}  // namespace odmiennik::window_test

#include "clipping_test.moc"
