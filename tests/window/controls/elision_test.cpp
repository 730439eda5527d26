// SPDX-License-Identifier: GPL-3.0-or-later
// The pronouns on the window: which they are, and that none stands twice.
#include "app/controls/form_surface.h"
#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class ElisionSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<EditedProgram>(); }
  void cleanup() { program_.reset(); }

  void aMuteHElides();
  void anAspiratedHDoesNot();
  void aReflexivePronounElidesInTheBoxAndNotBefore();
  void aPronominalVerbThatWasSavedHasItsPronounOnce();
  void theCaptionsOfFalloirAreItsOwn();

 private:
  [[nodiscard]] QString pronoun(int slot) const {
    return program_->window.findChild<app::FormSurface*>()->pronouns().pronoun(slot);
  }

  std::unique_ptr<EditedProgram> program_;
};

void ElisionSuite::aMuteHElides() {
  program_->conjugate("habiter");
  QCOMPARE(pronoun(0), "j'");
  QCOMPARE(program_->form(0), "habite");
  QCOMPARE(pronoun(1), "tu");
}

void ElisionSuite::anAspiratedHDoesNot() {
  program_->conjugate("haïr");
  QCOMPARE(pronoun(0), "je");
  program_->conjugate("se haïr");
  QCOMPARE(program_->form(0), "me hais");
  QCOMPARE(program_->form(2), "se hait");
}

void ElisionSuite::aReflexivePronounElidesInTheBoxAndNotBefore() {
  program_->conjugate("s'habiller");
  QCOMPARE(pronoun(0), "je");
  QCOMPARE(program_->form(0), "m'habille");
  QCOMPARE(program_->form(5), "s'habillent");
}

void ElisionSuite::aPronominalVerbThatWasSavedHasItsPronounOnce() {
  program_->edit("se laver");
  program_->box(1).setText("te lavix");
  program_->trigger("mnuPlikZapiszCzasownik");
  program_->conjugate("se laver");
  QCOMPARE(program_->form(0), "me lave");
  QCOMPARE(program_->form(1), "te lavix");
  program_->conjugate("laver");
  QCOMPARE(program_->form(1), "lavix");
}

void ElisionSuite::theCaptionsOfFalloirAreItsOwn() {
  program_->conjugate("parler");
  const QString present = program_->label("lblSubjoncif_0");
  program_->conjugate("falloir");
  QVERIFY(program_->label("lblSubjoncif_0") != present);
  QCOMPARE(program_->label("lblSubjoncif_0"), program_->label("lblSubjoncif_2"));
  QCOMPARE(program_->label("lblSubjoncif_1"), program_->label("lblSubjoncif_3"));
}

std::unique_ptr<QObject> elisionSuite() { return std::make_unique<ElisionSuite>(); }

}  // namespace odmiennik::window_test

#include "elision_test.moc"
