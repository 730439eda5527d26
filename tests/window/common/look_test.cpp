// SPDX-License-Identifier: GPL-3.0-or-later
// Font, language and colours.
#include <QApplication>
#include <QFontInfo>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "app/common/colours.h"
#include "app/common/look.h"
#include "app/common/program_style.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"
#include "tests/window/themes.h"

namespace odmiennik::window_test {
namespace {

constexpr double kReadableContrast = 4.5;

}  // namespace

class LookSuite : public QObject {
  Q_OBJECT

 private slots:
  void theProgramCarriesItsFont();
  void theProgramHasItsIconInEverySize();
  void theProgramSpeaksPolish();
  void headingsAreReadableOnLightAndDark_data();
  void headingsAreReadableOnLightAndDark();
  void headingsFollowAChangeOfTheTheme();
  void boxesHaveAnEdgeOnBlackGroundToo();
  void framesLookAsTheStylePaintsThemAtEveryScale();
};

void LookSuite::theProgramCarriesItsFont() {
  QFont bold = app::programFont();
  bold.setBold(true);
  QCOMPARE(QFontInfo(app::programFont()).family(), "Liberation Sans");
  QVERIFY(QFontInfo(bold).bold() && QFontInfo(bold).exactMatch());
  QVERIFY(QFile::exists(":/odmiennik/LiberationSans-Bold.ttf"));
}

void LookSuite::theProgramHasItsIconInEverySize() {
  const ProgramUnderTest program;
  QTRY_VERIFY(!QApplication::windowIcon().isNull());
  for (const int size : {16, 24, 32, 48, 128})
    QCOMPARE(QApplication::windowIcon()
                 .pixmap(QSize(size, size))
                 .toImage()
                 .pixelColor(size / 8, size / 2),
             QColor(0x1D, 0x4F, 0x91));
}

void LookSuite::theProgramSpeaksPolish() {
  QCOMPARE(QLocale().language(), QLocale::Polish);
  QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Anuluj");
}

void LookSuite::headingsAreReadableOnLightAndDark_data() { addThemes(); }

void LookSuite::headingsAreReadableOnLightAndDark() {
  QFETCH(QPalette, palette);
  const app::HeadingColours colours = app::designColours(palette);
  for (const QColor& ground : {palette.color(QPalette::Window), app::panelColour(palette)})
    for (const QColor& text : {colours.mood, colours.tense})
      QVERIFY2(contrast(text, ground) >= kReadableContrast,
               qPrintable(text.name() + " on " + ground.name()));
}

void LookSuite::headingsFollowAChangeOfTheTheme() {
  const QPalette light = QApplication::palette();
  ProgramUnderTest program;
  const auto colourOfMood = [&program] {
    return program.widget<QLabel>("lblTryb_0").palette().color(QPalette::WindowText);
  };
  const QColor before = colourOfMood();
  QApplication::setPalette(darkPalette());
  QTRY_COMPARE(colourOfMood(), app::designColours(darkPalette()).mood);
  QVERIFY(colourOfMood() != before);
  QApplication::setPalette(light);
  QTRY_COMPARE(colourOfMood(), before);
}

void LookSuite::boxesHaveAnEdgeOnBlackGroundToo() {
  constexpr double kVisibleContrast = 1.5;
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(Qt::black, Qt::black));
  ProgramUnderTest program;
  const QImage box = program.box(0).grab().toImage();
  QApplication::setPalette(before);
  QVERIFY(contrast(box.pixelColor(0, box.height() / 2), Qt::black) >= kVisibleContrast);
}

// That of the box with the focus is the style's own. They are copied from one picture, whose
// corners must come out in their own size.
void LookSuite::framesLookAsTheStylePaintsThemAtEveryScale() {
  const auto paintedBy = [](const QStyle& style, qreal scale) {
    QImage picture(QSize(102, 20) * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::white);
    QStyleOptionFrame frame;
    frame.rect = QRect(0, 0, 102, 20);
    frame.palette = QPalette(QColor(0xEF, 0xEF, 0xEF));
    frame.state = QStyle::State_Enabled | QStyle::State_HasFocus;
    frame.lineWidth = 1;
    QPainter painter(&picture);
    style.drawPrimitive(QStyle::PE_FrameLineEdit, &frame, &painter);
    painter.end();
    picture.setDevicePixelRatio(1);
    return picture;
  };
  const std::unique_ptr<QStyle> plain(QStyleFactory::create("Fusion"));
  const app::ProgramStyle copying;
  for (const qreal scale : {1.0, 1.5, 2.0, 3.0}) {
    const QImage expected = paintedBy(*plain, scale);
    const QImage seen = paintedBy(copying, scale);
    for (int y = 0; y < expected.height(); ++y)
      for (int x = 0; x < expected.width(); ++x)
        QVERIFY2(std::abs(expected.pixelColor(x, y).lightness() -
                          seen.pixelColor(x, y).lightness()) < 16,
                 qPrintable(QString("%1: %2, %3").arg(scale).arg(x).arg(y)));
  }
}

std::unique_ptr<QObject> lookSuite() { return std::make_unique<LookSuite>(); }

}  // namespace odmiennik::window_test

#include "look_test.moc"
