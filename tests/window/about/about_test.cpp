// SPDX-License-Identifier: GPL-3.0-or-later
// The about window.
#include "app/about/about_outline.h"
#include "app/about/about_window.h"
#include "tests/window/only_path.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::MessageId;

}  // namespace

class AboutSuite : public QObject {
  Q_OBJECT

 private slots:
  void theMenuOpensIt();
  void itTellsTheVersion();
  void theStatisticsSentenceFollowsTheCounts_data();
  void theStatisticsSentenceFollowsTheCounts();
  void theSentenceCountsWhatTheProgramDid();
  void allTextsHaveRoom();
  void itsOutlineIsNotRectangular();
  void outsideItsOutlineNothingIsPainted();
  void theOutlineIsOneClosedShapeWithinTheWindow();
  void itClosesWithOk();
  void itClosesWithEscape();
  void itIsMovedByDragging();
  void withoutASystemToolAMessageIsShown();
  void theFirstSystemToolOnThePathIsStarted();
};

void AboutSuite::theMenuOpensIt() {
  ProgramUnderTest program;
  QVERIFY(program.item("mnuPomocOProgramie").isEnabled());
  program.item("mnuPomocOProgramie").trigger();
  QTRY_VERIFY(program.window.findChild<QDialog*>("frmAbout") != nullptr);
  QVERIFY(program.widget<QDialog>("frmAbout").isModal());
}

void AboutSuite::itTellsTheVersion() {
  AnsweredMessages messages;
  QCoreApplication::setApplicationVersion("1.0.12");
  const app::AboutWindow about(nullptr, {}, messages);
  QCoreApplication::setApplicationVersion("1.0.0");
  QCOMPARE(about.findChild<QLabel*>("lblVersion")->text(), "Wersja 1.0.12");
}

void AboutSuite::theStatisticsSentenceFollowsTheCounts_data() {
  QTest::addColumn<int>("conjugations");
  QTest::addColumn<int>("runs");
  QTest::addColumn<QString>("counted");
  QTest::newRow("none") << 0 << 1 << "0 czasowników po 1 uruchomieniu.";
  QTest::newRow("one") << 1 << 1 << "1 czasownik po 1 uruchomieniu.";
  QTest::newRow("three") << 3 << 2 << "3 czasowniki po 2 uruchomieniach.";
  // deliberate: as with 2, 3 and 4.
  QTest::newRow("twelve") << 12 << 5 << "12 czasowniki po 5 uruchomieniach.";
  QTest::newRow("fourteen") << 14 << 5 << "14 czasowniki po 5 uruchomieniach.";
  QTest::newRow("fifteen") << 15 << 5 << "15 czasowników po 5 uruchomieniach.";
  QTest::newRow("twenty-four") << 24 << 5 << "24 czasowniki po 5 uruchomieniach.";
  QTest::newRow("hundred and one") << 101 << 3 << "101 czasowników po 3 uruchomieniach.";
}

void AboutSuite::theStatisticsSentenceFollowsTheCounts() {
  QFETCH(int, conjugations);
  QFETCH(int, runs);
  QFETCH(QString, counted);
  AnsweredMessages messages;
  const app::AboutWindow about(nullptr, {conjugations, runs}, messages);
  QCOMPARE(about.findChild<QLabel*>("lblStatystyka")->text(), "Statystyka: odmieniono " + counted);
}

void AboutSuite::theSentenceCountsWhatTheProgramDid() {
  ProgramUnderTest program;
  program.conjugate("parler");
  program.conjugate("finir");
  program.item("mnuPomocOProgramie").trigger();
  QTRY_VERIFY(program.window.findChild<QDialog*>("frmAbout") != nullptr);
  QCOMPARE(program.label("lblStatystyka"),
           "Statystyka: odmieniono 2 czasowniki po 1 uruchomieniu.");
}

void AboutSuite::allTextsHaveRoom() {
  AnsweredMessages messages;
  app::AboutWindow about(nullptr, {2147483647, 2147483647}, messages);
  about.show();
  for (const QLabel* label : about.findChildren<QLabel*>()) {
    const QSize needed =
        label->fontMetrics()
            .boundingRect(QRect(0, 0, label->width(), 1000), Qt::TextWordWrap, label->text())
            .size();
    QVERIFY2(needed.width() <= label->width() && needed.height() <= label->height(),
             qPrintable(label->objectName()));
    QVERIFY(app::aboutRegion().contains(label->geometry().bottomRight()));
  }
}

void AboutSuite::itsOutlineIsNotRectangular() {
  AnsweredMessages messages;
  const app::AboutWindow about(nullptr, {}, messages);
  QCOMPARE(about.mask(), app::aboutRegion());
  const int right = about.width() - 1, bottom = about.height() - 1;
  for (const QPoint corner :
       {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
    QVERIFY(!about.mask().contains(corner));
  QVERIFY(about.mask().contains(about.rect().center()));
}

// Where a mask does not shape what is seen, what is painted does.
void AboutSuite::outsideItsOutlineNothingIsPainted() {
  AnsweredMessages messages;
  app::AboutWindow about(nullptr, {}, messages);
  about.show();
  QImage picture(about.size(), QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  about.render(&picture, {}, {},
               QWidget::DrawWindowBackground | QWidget::DrawChildren | QWidget::IgnoreMask);
  QRegion painted;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (qAlpha(picture.pixel(x, y)) != 0) painted += QRect(x, y, 1, 1);
  QCOMPARE(painted, app::aboutRegion());
}

void AboutSuite::theOutlineIsOneClosedShapeWithinTheWindow() {
  const QRegion ofTheOutline(app::aboutOutline());
  QCOMPARE(ofTheOutline.xored(app::aboutRegion()).boundingRect().height(), 0);
  QVERIFY(QRect(QPoint(0, 0), app::kAboutSize).contains(app::aboutRegion().boundingRect()));
}

void AboutSuite::itClosesWithOk() {
  AnsweredMessages messages;
  app::AboutWindow about(nullptr, {}, messages);
  about.open();
  about.findChild<QPushButton*>("cmdOK")->click();
  QVERIFY(!about.isVisible());
}

void AboutSuite::itClosesWithEscape() {
  AnsweredMessages messages;
  app::AboutWindow about(nullptr, {}, messages);
  about.open();
  QTest::keyClick(&about, Qt::Key_Escape);
  QVERIFY(!about.isVisible());
}

// Without a window manager the window follows the pointer itself.
void AboutSuite::itIsMovedByDragging() {
  AnsweredMessages messages;
  app::AboutWindow about(nullptr, {}, messages);
  about.move(50, 60);
  about.show();
  QVERIFY(QTest::qWaitForWindowExposed(&about));
  const QPoint grip(200, 110);
  const QPoint from = about.pos();
  QTest::mousePress(&about, Qt::LeftButton, {}, grip);
  const QPointF target = about.mapToGlobal(grip) + QPoint(30, 20);
  QMouseEvent drag(QEvent::MouseMove, QPointF(grip) + QPointF(30, 20), target, Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&about, &drag);
  QCOMPARE(about.pos(), from + QPoint(30, 20));
}

void AboutSuite::withoutASystemToolAMessageIsShown() {
  const OnlyPath nothing;
  AnsweredMessages messages;
  app::AboutWindow about(nullptr, {}, messages);
  about.open();
  about.findChild<QPushButton*>("cmdSysInfo")->click();
  QTRY_COMPARE(messages.shown, std::vector<MessageId>{MessageId::systemInformationMissing});
  const dictionary::MessageRow& row = dictionary::row(MessageId::systemInformationMissing);
  QCOMPARE(QString::fromUtf8(row.text.data()), "Informacje o systemie są niedostępne.");
  QVERIFY(row.icon == dictionary::Icon::none && row.title.empty());
  QVERIFY(about.isVisible());
}

void AboutSuite::theFirstSystemToolOnThePathIsStarted() {
  const OnlyPath path;
  path.addProgram("hardinfo");
  path.addProgram("kinfocenter");
  AnsweredMessages messages;
  app::AboutWindow about(nullptr, {}, messages);
  about.findChild<QPushButton*>("cmdSysInfo")->click();
  QTRY_VERIFY(path.hasStarted("hardinfo"));
  QVERIFY(!path.hasStarted("kinfocenter"));
  QVERIFY(messages.shown.empty());
}

std::unique_ptr<QObject> aboutSuite() { return std::make_unique<AboutSuite>(); }

}  // namespace odmiennik::window_test

#include "about_test.moc"
