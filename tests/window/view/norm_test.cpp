// SPDX-License-Identifier: GPL-3.0-or-later
// Today's norm: the mark of a form that departs from it, and the forms at one tick.
#include <QCheckBox>
#include <QHelpEvent>
#include <QToolTip>

#include "tests/window/edited_program.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

// The boxes of a program, by slot, that say what the norm has in their place.
QMap<int, QString> marksOf(const ProgramUnderTest& program) {
  QMap<int, QString> marks;
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const QString text = program.box(slot).accessibleDescription();
    if (!text.isEmpty()) marks.insert(slot, text);
  }
  return marks;
}

void tick(const ProgramUnderTest& program) { program.item("mnuWidokNorma").trigger(); }

// Whether a pixel in the box's upper right corner is neither ground nor edge.
bool hasCorner(const ProgramUnderTest& program, int slot) {
  app::FormBox& box = program.box(slot);
  const QImage picture = box.grab().toImage();
  const QPoint corner(picture.width() - 3, 3);
  const QPoint mirrored(2, 3);
  return picture.pixelColor(corner) != picture.pixelColor(mirrored);
}

const QMap<int, QString> kMarksOfLire{{2, "Dzisiejsza norma: lit"},
                                      {83, "Dzisiejsza norma: auraient lu"}};

}  // namespace

class NormSuite : public QObject {
  Q_OBJECT

 private slots:
  void aFormThatDepartsIsMarkedAndKeepsItsText();
  void aMarkCanBeSeen();
  void aMarkGoesWithItsVerb();
  void theCaptionAboveFalloirIsMarkedAndTellsTheNorm();
  void theCaptionsMarkGoesWithItsVerbAndWithTheTick();
  void theTooltipTellsTheNorm();
  void theDescriptionIsThereAgainAfterTheTooltip();
  void theTickShowsTheVerbAnewAtOnce();
  void theTickIsKeptForTheNextStart();
  void theTickShowsNoMessageASecondTime();
  void theTickLeavesWhatIsBeingTyped();
  void theTickLeavesTheAuxiliaryThatWasChosen();
  void theTickBeforeTheFirstVerbHoldsForIt();
  void aChosenAuxiliaryIsNoDeparture();
  void whileAVerbIsEditedNothingIsMarked();
  void theTickWhileAVerbIsEditedLeavesItsForms();
  void anOwnVerbIsNeitherMarkedNorChanged();
};

void NormSuite::aFormThatDepartsIsMarkedAndKeepsItsText() {
  ProgramUnderTest program;
  program.conjugate("lire");
  QCOMPARE(marksOf(program), kMarksOfLire);
  QCOMPARE(program.form(2), "lir");
}

void NormSuite::aMarkCanBeSeen() {
  ProgramUnderTest program;
  program.conjugate("lire");
  QVERIFY(hasCorner(program, 2));
  QVERIFY(!hasCorner(program, 1));
}

void NormSuite::aMarkGoesWithItsVerb() {
  ProgramUnderTest program;
  program.conjugate("lire");
  program.conjugate("finir");
  QCOMPARE(marksOf(program).keys(), QList<int>{83});
  QVERIFY(!hasCorner(program, 2));
}

void NormSuite::theCaptionAboveFalloirIsMarkedAndTellsTheNorm() {
  ProgramUnderTest program;
  auto& caption = program.widget<QLabel>("lblSubjoncif_0");
  program.conjugate("falloir");
  QCOMPARE(caption.text(), "Il ne crois pas que ...");
  QCOMPARE(caption.accessibleDescription(), "Dzisiejsza norma: Il ne croit pas que ...");
  const QImage marked = caption.grab().toImage();
  QHelpEvent asked(QEvent::ToolTip, caption.geometry().center(), caption.mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(caption.parentWidget(), &asked);
  QCOMPARE(QToolTip::text(), "Dzisiejsza norma: Il ne croit pas que ...");
  QToolTip::hideText();
  static_cast<app::CaptionLabel&>(caption).markDeparture({});
  QVERIFY(caption.grab().toImage() != marked);
}

void NormSuite::theCaptionsMarkGoesWithItsVerbAndWithTheTick() {
  ProgramUnderTest program;
  const auto& caption = program.widget<QLabel>("lblSubjoncif_1");
  program.conjugate("falloir");
  QVERIFY(!caption.accessibleDescription().isEmpty());
  tick(program);
  QCOMPARE(caption.text(), "Il ne croyait pas que ...");
  QCOMPARE(caption.accessibleDescription(), QString());
  tick(program);
  QVERIFY(!caption.accessibleDescription().isEmpty());
  program.conjugate("lire");
  QCOMPARE(caption.accessibleDescription(), QString());
}

void NormSuite::theTooltipTellsTheNorm() {
  ProgramUnderTest program;
  program.conjugate("lire");
  app::FormBox& box = program.box(2);
  QHelpEvent asked(QEvent::ToolTip, box.geometry().center(), box.mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(box.parentWidget(), &asked);
  QCOMPARE(QToolTip::text(), "il lir\nDzisiejsza norma: lit\nF1: kiedy używa się tej formy");
  QToolTip::hideText();
}

void NormSuite::theDescriptionIsThereAgainAfterTheTooltip() {
  ProgramUnderTest program;
  program.conjugate("lire");
  program.box(1).setFocus();
  program.box(2).setFocus();
  QTRY_VERIFY(program.box(2).accessibleDescription().startsWith("il lir"));
  program.box(3).setFocus();
  QTRY_COMPARE(marksOf(program).value(2), "Dzisiejsza norma: lit");
}

void NormSuite::theTickShowsTheVerbAnewAtOnce() {
  ProgramUnderTest program;
  program.conjugate("lire");
  tick(program);
  QCOMPARE(program.form(2), "lit");
  QCOMPARE(program.form(83), "auraient lu");
  QVERIFY(marksOf(program).isEmpty());
  tick(program);
  QCOMPARE(program.form(2), "lir");
  QCOMPARE(marksOf(program), kMarksOfLire);
}

void NormSuite::theTickIsKeptForTheNextStart() {
  ProgramHome home;
  {
    ProgramRun first(home);
    first.program.start();
    QVERIFY(!app::menuItem(*first.program.window().menuBar(), "mnuWidokNorma").isChecked());
    app::menuItem(*first.program.window().menuBar(), "mnuWidokNorma").trigger();
  }
  ProgramRun second(home);
  second.program.start();
  QVERIFY(app::menuItem(*second.program.window().menuBar(), "mnuWidokNorma").isChecked());
  second.conjugate("lire");
  QCOMPARE(second.widget<QLineEdit>("txtCzasownik_2").text(), "lit");
}

void NormSuite::theTickShowsNoMessageASecondTime() {
  ProgramUnderTest program;
  program.conjugate("blobber");
  QCOMPARE(program.messages.shown.size(), std::size_t{1});
  tick(program);
  QCOMPARE(program.messages.shown.size(), std::size_t{1});
}

void NormSuite::theTickLeavesWhatIsBeingTyped() {
  ProgramUnderTest program;
  program.conjugate("lire");
  program.entry().selectAll();
  program.type("fin");
  const QString typed = program.entry().text();
  tick(program);
  QCOMPARE(program.entry().text(), typed);
  QCOMPARE(program.form(2), "lit");
}

void NormSuite::theTickLeavesTheAuxiliaryThatWasChosen() {
  ProgramUnderTest program;
  program.conjugate("monter");
  program.auxiliary().click();
  program.auxiliary().click();
  tick(program);
  QCOMPARE(program.form(24), "ai monté");
}

void NormSuite::theTickBeforeTheFirstVerbHoldsForIt() {
  ProgramUnderTest program;
  tick(program);
  program.conjugate("tomber");
  QCOMPARE(program.form(24), "suis tombé(e)");
  QVERIFY(!program.auxiliary().isChecked());
}

void NormSuite::aChosenAuxiliaryIsNoDeparture() {
  ProgramUnderTest program;
  program.conjugate("tomber");
  QCOMPARE(marksOf(program).value(24), "Dzisiejsza norma: je suis tombé(e)");
  program.auxiliary().click();
  QCOMPARE(program.form(24), "suis tombé(e)");
  QVERIFY(!marksOf(program).contains(24));
  program.auxiliary().click();
  QCOMPARE(program.form(24), "ai tombé");
  QVERIFY(!marksOf(program).contains(24));
}

void NormSuite::whileAVerbIsEditedNothingIsMarked() {
  EditedProgram program;
  program.edit("lire");
  QVERIFY(marksOf(program).isEmpty());
  QVERIFY(!hasCorner(program, 2));
  QTest::keyClick(&program.entry(), Qt::Key_Escape);
  QTRY_VERIFY(!program.isEditing());
  QCOMPARE(marksOf(program).value(2), "Dzisiejsza norma: lit");
}

void NormSuite::theTickWhileAVerbIsEditedLeavesItsForms() {
  EditedProgram program;
  program.edit("lire");
  program.box(2).setText("lirait");
  tick(program);
  QCOMPARE(program.form(2), "lirait");
  QVERIFY(program.isEditing());
}

void NormSuite::anOwnVerbIsNeitherMarkedNorChanged() {
  EditedProgram program;
  program.edit("lire");
  program.trigger("mnuPlikZapiszCzasownik");
  QVERIFY(!program.isEditing());
  program.conjugate("lire");
  QCOMPARE(program.form(2), "lir");
  QVERIFY(marksOf(program).isEmpty());
  tick(program);
  QCOMPARE(program.form(2), "lir");
}

std::unique_ptr<QObject> normSuite() { return std::make_unique<NormSuite>(); }

}  // namespace odmiennik::window_test

#include "norm_test.moc"
