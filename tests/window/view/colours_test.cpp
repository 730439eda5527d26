// SPDX-License-Identifier: GPL-3.0-or-later
// The user's two colours.
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>

#include "app/common/colours.h"
#include "app/controls/placement.h"
#include "app/view/colour_window.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using app::ColourNumbers;

// Answers with a colour, or cancels; remembers where it was to start.
class AnsweredChooser final : public app::ColourChooser {
 public:
  std::optional<QColor> choose(QWidget& parent, const QColor& start) override {
    started.push_back(start);
    couldApply = parent.findChild<QPushButton*>("cmdZastosuj")->isEnabled();
    return answer;
  }
  QList<QColor> started;
  bool couldApply = false;
  std::optional<QColor> answer;
};

const QColor kGreen(0, 128, 0), kBrown(0x80, 0x40, 0x10);

struct ColourProgram : ProgramUnderTest {
  AnsweredChooser chooser;
  app::ColourWindow colours{window.colours(), chooser, &window};

  QPushButton& button(const char* name) const {
    return *colours.findChild<QPushButton*>(QString::fromUtf8(name));
  }
  QColor sample(int index) const {
    return colours.findChild<app::ColourSample*>(QString("shpKolor_%1").arg(index))->colour();
  }
  void change(int index, std::optional<QColor> to) {
    chooser.answer = to;
    button(index == 0 ? "cmdZmień_0" : "cmdZmień_1").click();
  }
  QColor colourOf(const QString& name) const {
    return widget<QLabel>(name).palette().color(QPalette::WindowText);
  }
  // The colour of a pixel in the middle of a shape that is painted on the window.
  QColor painted(std::size_t row) const {
    const QRect place = app::place(app::kMainWindow[row]);
    return entry().parentWidget()->grab().toImage().pixelColor(place.center());
  }
};

}  // namespace

class ColoursSuite : public QObject {
  Q_OBJECT

 private slots:
  void theWindowStartsOnTheLiveColours();
  void aChosenColourIsOnlyShownInItsSample();
  void choosingAndCancellingLeavesTheMainWindow();
  void appliedColoursStayWhenTheWindowIsCancelled();
  void okAppliesAndCloses();
  void applyIsEnabledByTheChooserAndDisabledByItself();
  void deliberateACancelledChooserEnablesApplyToo();
  void allTenseHeadingsChangeAndThatOfTheCompoundParticiple();
  void allMoodHeadingsRulesAndDecorationsChange();
  void aSystemColourIsShownAsTextAndKeptUntilAnotherIsChosen();
  void theMenuOpensTheWindowModally();
  void aSampleAndItsButtonSayWhatTheyAreFor();
  void theSystemsChooserStartsOnTheColourAndSpeaksPolish();
  void appliedColoursAreSavedAndComeBack();
  void theDesignsColoursFollowTheThemeWhicheverShadeWasStored();
  void aChosenColourIsTakenAsItIsThoughItIsAShadeOfTheDesign();
};

void ColoursSuite::theWindowStartsOnTheLiveColours() {
  ColourProgram program;
  QCOMPARE(program.sample(0), program.colourOf("lblTryb_0"));
  QCOMPARE(program.sample(1), program.colourOf("lblCzas_0"));
  QVERIFY(!program.button("cmdZastosuj").isEnabled());
  QCOMPARE(program.colours.objectName(), "frmKolory");
  QCOMPARE(program.colours.windowTitle(), "Kolory");
  QCOMPARE(program.colours.findChild<QLabel*>("lblKolorTrybu")->text(), "Kolor pierwszy");
  QCOMPARE(program.colours.findChild<QLabel*>("lblKolorCzasu")->text(), "Kolor drugi");
}

void ColoursSuite::aChosenColourIsOnlyShownInItsSample() {
  ColourProgram program;
  const QColor mood = program.sample(0), tense = program.sample(1);
  program.change(1, kGreen);
  QCOMPARE(program.chooser.started, QList{tense});
  QCOMPARE(program.sample(0), mood);
  QCOMPARE(program.sample(1), kGreen);
  QCOMPARE(program.colourOf("lblCzas_0"), tense);
}

void ColoursSuite::choosingAndCancellingLeavesTheMainWindow() {
  ColourProgram program;
  const ColourNumbers before = program.window.colours().live();
  program.change(0, kGreen);
  program.button("cmdAnuluj").click();
  QVERIFY(program.window.colours().live() == before);
  QVERIFY(program.colourOf("lblTryb_0") != kGreen);
}

void ColoursSuite::appliedColoursStayWhenTheWindowIsCancelled() {
  ColourProgram program;
  program.change(0, kGreen);
  program.button("cmdZastosuj").click();
  program.button("cmdAnuluj").click();
  QCOMPARE(program.colourOf("lblTryb_0"), kGreen);
  QCOMPARE(program.window.colours().live().mood, 128 * 256);
}

void ColoursSuite::okAppliesAndCloses() {
  ColourProgram program;
  program.colours.open();
  program.change(0, kGreen);
  program.change(1, kBrown);
  program.button("cmdOk").click();
  QVERIFY(!program.colours.isVisible());
  QCOMPARE(program.colourOf("lblTryb_5"), kGreen);
  QCOMPARE(program.colourOf("lblCzas_20"), kBrown);
}

void ColoursSuite::applyIsEnabledByTheChooserAndDisabledByItself() {
  ColourProgram program;
  program.change(0, kGreen);
  QVERIFY(program.chooser.couldApply);
  QVERIFY(program.button("cmdZastosuj").isEnabled());
  program.button("cmdZastosuj").click();
  QVERIFY(!program.button("cmdZastosuj").isEnabled());
}

void ColoursSuite::deliberateACancelledChooserEnablesApplyToo() {
  ColourProgram program;
  const QColor before = program.sample(0);
  program.change(0, std::nullopt);
  QVERIFY(program.button("cmdZastosuj").isEnabled());
  QCOMPARE(program.sample(0), before);
}

void ColoursSuite::allTenseHeadingsChangeAndThatOfTheCompoundParticiple() {
  const ColourProgram program;
  program.window.colours().ApplyColours(app::numberOf(kBrown), app::numberOf(kGreen));
  for (int i = 0; i < 21; ++i) QCOMPARE(program.colourOf(QString("lblCzas_%1").arg(i)), kGreen);
  QCOMPARE(program.colourOf(QString::fromUtf8("lblImiesłówZłożony")), kGreen);
}

void ColoursSuite::allMoodHeadingsRulesAndDecorationsChange() {
  const ColourProgram program;
  program.window.colours().ApplyColours(app::numberOf(kBrown), app::numberOf(kGreen));
  for (int i = 0; i < 6; ++i) QCOMPARE(program.colourOf(QString("lblTryb_%1").arg(i)), kBrown);
  int shapes = 0;
  for (std::size_t row = 0; row < app::mainWindowRows().size(); ++row) {
    if (app::kMainWindow[row].kind != app::ControlKind::shape) continue;
    QCOMPARE(program.painted(row), kBrown);
    ++shapes;
  }
  QCOMPARE(shapes, 10);
}

void ColoursSuite::aSystemColourIsShownAsTextAndKeptUntilAnotherIsChosen() {
  constexpr std::int32_t kSystemColour = -2147483630;
  ColourProgram program;
  app::LiveColours& live = program.window.colours();
  live.ApplyColours(kSystemColour, app::numberOf(kGreen));
  QCOMPARE(program.colourOf("lblTryb_0"), program.window.palette().color(QPalette::WindowText));
  app::ColourWindow second(live, program.chooser, &program.window);
  second.findChild<QPushButton*>("cmdOk")->click();
  QCOMPARE(live.live().mood, kSystemColour);
  program.change(0, kBrown);
  program.button("cmdOk").click();
  QCOMPARE(live.live().mood, app::numberOf(kBrown));
}

void ColoursSuite::theMenuOpensTheWindowModally() {
  const ProgramUnderTest program;
  bool isModal = false;
  ModalVisitor visitor([&isModal](QDialog& dialog) {
    isModal = dialog.isModal() && dialog.objectName() == "frmKolory";
  });
  program.item("mnuWidokKolory").trigger();
  QTRY_VERIFY(isModal);
}

void ColoursSuite::aSampleAndItsButtonSayWhatTheyAreFor() {
  const ColourProgram program;
  const auto tipOf = [&program](const char* name) {
    auto* control = program.colours.findChild<QWidget*>(QString::fromUtf8(name));
    QHelpEvent event(QEvent::ToolTip, control->rect().center(), control->mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(control, &event);
    return QToolTip::text();
  };
  const QString mood = "kolor nagłówków trybów, na przykład INDICATIF";
  const QString tense = "kolor nagłówków czasów, na przykład Présent";
  QCOMPARE(tipOf("shpKolor_0"), mood);
  QCOMPARE(tipOf("shpKolor_1"), tense);
  QCOMPARE(tipOf("lblKolorTrybu"), mood);
  QCOMPARE(tipOf("lblKolorCzasu"), tense);
  QCOMPARE(tipOf("cmdZmień_1"), "wybierz inny kolor (spacja)");
}

void ColoursSuite::theSystemsChooserStartsOnTheColourAndSpeaksPolish() {
  const ProgramUnderTest program;
  QString title, name;
  QTimer::singleShot(0, qApp, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    name = dialog->objectName();
    title = dialog->windowTitle();
    dialog->accept();
  });
  const auto chosen = app::QtColourChooser().choose(program.window, kBrown);
  QCOMPARE(name, "CommonDialog1");
  QCOMPARE(title, "Wybierz kolor");
  QCOMPARE(chosen.value_or(Qt::white), kBrown);
}

void ColoursSuite::appliedColoursAreSavedAndComeBack() {
  ProgramHome home;
  {
    ProgramRun run(home);
    run.program.start();
    run.program.window().colours().ApplyColours(app::numberOf(kBrown), app::numberOf(kGreen));
    run.program.window().close();
  }
  QCOMPARE(home.setting(2), QString::number(0x80 + 256 * 0x40 + 65536 * 0x10));
  QCOMPARE(home.setting(3), QString::number(128 * 256));
  ProgramRun run(home);
  run.program.start();
  QCOMPARE(run.widget<QLabel>("lblCzas_3").palette().color(QPalette::WindowText), kGreen);
}

void ColoursSuite::theDesignsColoursFollowTheThemeWhicheverShadeWasStored() {
  const ProgramUnderTest program;
  app::LiveColours& live = program.window.colours();
  const ColourNumbers design = live.design();
  live.adopt({app::numberOf(app::kMoodOnDark), app::numberOf(app::kTenseOnDark)});
  QVERIFY(live.live() == design);
  live.adopt({app::numberOf(app::kMoodOnLight), app::numberOf(app::kTenseOnLight)});
  QVERIFY(live.live() == design);
}

void ColoursSuite::aChosenColourIsTakenAsItIsThoughItIsAShadeOfTheDesign() {
  ColourProgram program;
  const QColor otherShade(app::kMoodOnDark);
  program.change(0, otherShade);
  program.button("cmdOk").click();
  QCOMPARE(program.colourOf("lblTryb_0"), otherShade);
}

std::unique_ptr<QObject> coloursSuite() { return std::make_unique<ColoursSuite>(); }

}  // namespace odmiennik::window_test

#include "colours_test.moc"
