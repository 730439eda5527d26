// SPDX-License-Identifier: GPL-3.0-or-later
// From a typed infinitive to the filled window.
#include "app/controls/form_surface.h"
#include "tests/window/program_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;
using Messages = std::vector<MessageId>;

// Counts how often a widget is painted.
class PaintCounter final : public QObject {
 public:
  explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
};

}  // namespace

class ConjugatingSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<ProgramUnderTest>(); }
  void cleanup() { program_.reset(); }

  void anEmptyTableStartsWithItsPronouns();
  void enterFillsTheBoxesAndThePronouns();
  void theKeypadsEnterConjugatesToo();
  void ctrlOConjugates();
  void theButtonConjugates();
  void theMenuItemConjugates();
  void theNextVerbReplacesTheInfinitive();
  void theInformationIsShown();
  void aFixedAuxiliaryCannotBeSwitched();
  void aClickOnTheAuxiliaryRebuildsTheCompoundTenses();
  void aClickBeforeTheFirstVerbDisplaysTheEmptyTable();
  void theCaptionOfTheAuxiliaryFollowsTheVerb();
  void aPronominalVerbHasItsPronounsInTheBoxes();
  void falloirHasCaptionsOfItsOwn();
  void anUnknownVerbIsConjugatedWithANotice();
  void aVerbWithoutARuleIsRefused();
  void resetujAnsweredCancelChangesNothing();
  void resetujAnsweredCancelLeavesTheAuxiliary();
  void resetujAnsweredOkResets();
  void aSecondCommandBehindAMessageDoesNothing();
  void absurdInputIsAnswered();
  void oneConjugationIsOneRepaint();

 private:
  std::unique_ptr<ProgramUnderTest> program_;

  // Those whose forms are made of two words.
  [[nodiscard]] QList<int> compoundSlots() const {
    QList<int> found;
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      if (program_->form(slot).contains(' ')) found += slot;
    return found;
  }
  [[nodiscard]] app::PronounPainter& pronouns() const {
    return program_->window.findChild<app::FormSurface*>()->pronouns();
  }
};

void ConjugatingSuite::anEmptyTableStartsWithItsPronouns() {
  QCOMPARE(pronouns().pronoun(0), "je");
  QCOMPARE(pronouns().pronoun(89), "ils");
  QCOMPARE(program_->form(0), QString());
  QCOMPARE(program_->label("lblSubjoncif_0"), "Il faut que ...");
  for (const char* value : {"lblGrupaWartość", "lblPrzechodniWartość", "lblNieprzechodniWartość",
                            "lblPosiłkowyWartość", "lblRządWartość"})
    QCOMPARE(program_->label(value), "b.d.");
  QVERIFY(program_->auxiliary().isChecked() && program_->auxiliary().isEnabled());
  QCOMPARE(program_->auxiliary().text(), "&se conjugué avec avoir");
}

void ConjugatingSuite::enterFillsTheBoxesAndThePronouns() {
  program_->conjugate("parler");
  QCOMPARE(program_->form(0), "parle");
  QCOMPARE(program_->form(24), "ai parlé");
  QCOMPARE(program_->form(97), "avoir parlé");
  QCOMPARE(program_->form(100), "ayant parlé");
  QCOMPARE(pronouns().pronoun(0), "je");
  QCOMPARE(pronouns().pronoun(24), "j'");
  QCOMPARE(pronouns().pronoun(27), "ns");
  QVERIFY(program_->messages.shown.empty());
}

void ConjugatingSuite::theKeypadsEnterConjugatesToo() {
  program_->type("finir");
  QTest::keyClick(&program_->entry(), Qt::Key_Enter);
  QTRY_COMPARE(program_->form(0), "finis");
}

void ConjugatingSuite::ctrlOConjugates() {
  program_->type("finir");
  QTest::keyClick(&program_->window, Qt::Key_O, Qt::ControlModifier);
  QTRY_COMPARE(program_->form(0), "finis");
}

void ConjugatingSuite::theButtonConjugates() {
  program_->type("finir");
  QTest::mouseClick(&program_->widget<QPushButton>("cmdOdmień"), Qt::LeftButton);
  QTRY_COMPARE(program_->form(0), "finis");
}

void ConjugatingSuite::theMenuItemConjugates() {
  program_->type("finir");
  program_->item("mnuEdycjaOdmień").trigger();
  QTRY_COMPARE(program_->form(0), "finis");
}

void ConjugatingSuite::theNextVerbReplacesTheInfinitive() {
  program_->conjugate("  Parler ");
  QCOMPARE(program_->entry().selectedText(), "parler");
  QCOMPARE(QApplication::focusWidget(), &program_->entry());
  program_->type("finir");
  QCOMPARE(program_->entry().text(), "finir");
}

void ConjugatingSuite::theInformationIsShown() {
  program_->conjugate("parler");
  QCOMPARE(program_->label("lblGrupaWartość"), "pierwsza");
  QCOMPARE(program_->label("lblPosiłkowyWartość"), "avoir");
  QCOMPARE(program_->label("lblRządWartość"), "b.d.");
}

void ConjugatingSuite::aFixedAuxiliaryCannotBeSwitched() {
  program_->conjugate("aller");
  QVERIFY(!program_->auxiliary().isEnabled());
  QVERIFY(!program_->auxiliary().isChecked());
  QCOMPARE(program_->form(24), "suis allé(e)");
}

void ConjugatingSuite::aClickOnTheAuxiliaryRebuildsTheCompoundTenses() {
  program_->conjugate("monter");
  QCOMPARE(program_->form(24), "ai monté");
  QVERIFY(program_->auxiliary().isEnabled());
  const QString known = program_->label("lblPosiłkowyWartość");
  const QList<int> compounds = compoundSlots();
  QCOMPARE(compounds.size(), 8 * 6 + 3 + 2);
  program_->auxiliary().click();
  QCOMPARE(program_->form(24), "suis monté(e)");
  for (const int slot : compounds)
    QVERIFY2(program_->form(slot).contains(" monté(e)"), qPrintable(program_->form(slot)));
  QCOMPARE(pronouns().pronoun(24), "je");
  QCOMPARE(program_->auxiliary().text(), "&se conjugué avec être");
  QCOMPARE(program_->label("lblPosiłkowyWartość"), known);
  program_->auxiliary().click();
  QCOMPARE(program_->form(24), "ai monté");
  QCOMPARE(program_->auxiliary().text(), "&se conjugué avec avoir");
}

// deliberate: a click displays the table as it is, the infinitive's slot included.
void ConjugatingSuite::aClickBeforeTheFirstVerbDisplaysTheEmptyTable() {
  program_->auxiliary().click();
  QCOMPARE(program_->form(0), " -- ");
  QCOMPARE(program_->entry().text(), " -- ");
  QCOMPARE(program_->auxiliary().text(), "&se conjugué avec être");
}

void ConjugatingSuite::theCaptionOfTheAuxiliaryFollowsTheVerb() {
  program_->conjugate("aller");
  QCOMPARE(program_->auxiliary().text(), "&se conjugué avec être");
  program_->conjugate("parler");
  QCOMPARE(program_->auxiliary().text(), "&se conjugué avec avoir");
}

void ConjugatingSuite::aPronominalVerbHasItsPronounsInTheBoxes() {
  program_->conjugate("se promener");
  QCOMPARE(program_->form(0), "me promène");
  QCOMPARE(program_->form(93), " -- ");
  QCOMPARE(program_->form(96), "se promener");
  QCOMPARE(program_->label("lblPrzechodniWartość"), "nie");
}

void ConjugatingSuite::falloirHasCaptionsOfItsOwn() {
  program_->conjugate("falloir");
  QCOMPARE(program_->label("lblSubjoncif_0"), "Il ne crois pas que ...");
  QCOMPARE(program_->label("lblSubjoncif_1"), "Il ne croyais pas que ...");
  program_->conjugate("parler");
  QCOMPARE(program_->label("lblSubjoncif_1"), "Il fallait que ...");
}

void ConjugatingSuite::anUnknownVerbIsConjugatedWithANotice() {
  program_->conjugate("zazer");
  QCOMPARE(program_->messages.shown, Messages{MessageId::conjugatedRegularly});
  QCOMPARE(program_->form(0), "zaze");
  QCOMPARE(program_->label("lblGrupaWartość"), "b.d.");
}

void ConjugatingSuite::aVerbWithoutARuleIsRefused() {
  program_->conjugate("parler");
  program_->conjugate("zzz");
  QCOMPARE(program_->messages.shown, Messages{MessageId::notConjugable});
  QCOMPARE(program_->form(0), " -- ");
}

void ConjugatingSuite::resetujAnsweredCancelChangesNothing() {
  program_->conjugate("parler");
  program_->messages.answer = Button::cancel;
  program_->conjugate("resetuj");
  QCOMPARE(program_->messages.shown, Messages{MessageId::settingsWillBeReset});
  QCOMPARE(program_->ends, 0);
  QCOMPARE(program_->form(0), "parle");
}

void ConjugatingSuite::resetujAnsweredCancelLeavesTheAuxiliary() {
  program_->conjugate("monter");
  program_->auxiliary().click();
  program_->messages.answer = Button::cancel;
  program_->conjugate("resetuj");
  QCOMPARE(program_->window.auxiliary(), engine::kEtre);
  QCOMPARE(program_->auxiliary().text(), "&se conjugué avec être");
  program_->auxiliary().click();
  QCOMPARE(program_->form(24), "ai monté");
  QCOMPARE(program_->entry().text(), "monter");
}

void ConjugatingSuite::resetujAnsweredOkResets() {
  program_->conjugate("resetuj");
  QCOMPARE(program_->ends, 1);
}

void ConjugatingSuite::aSecondCommandBehindAMessageDoesNothing() {
  program_->messages.whileShown = [this] { program_->window.conjugate(); };
  program_->conjugate("zazer");
  QCOMPARE(program_->messages.shown.size(), 1U);
}

void ConjugatingSuite::absurdInputIsAnswered() {
  for (const QString& input :
       {QString(), QString("a"), QString("se"), QString("s'"), QString(10000, 'a')}) {
    program_->entry().setText(input);
    program_->messages.shown.clear();
    program_->window.conjugate();
    QCOMPARE(program_->messages.shown, Messages{MessageId::notConjugable});
    QCOMPARE(program_->form(0), " -- ");
  }
  program_->entry().setText("parler finir");
  program_->window.conjugate();
  QCOMPARE(program_->messages.shown.back(), MessageId::conjugatedRegularly);
  program_->entry().setText("ÊTRE");
  program_->window.conjugate();
  QCOMPARE(program_->form(0), "suis");
}

void ConjugatingSuite::oneConjugationIsOneRepaint() {
  program_->type("parler");
  PaintCounter paints(*program_->window.findChild<app::FormSurface*>());
  program_->window.conjugate();
  QTRY_VERIFY(paints.count > 0);
  QCoreApplication::processEvents();
  QCOMPARE(paints.count, 1);
}

std::unique_ptr<QObject> conjugatingSuite() { return std::make_unique<ConjugatingSuite>(); }

}  // namespace odmiennik::window_test

#include "conjugating_test.moc"
