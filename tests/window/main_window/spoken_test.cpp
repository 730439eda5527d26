// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told when something has happened.
#include <QComboBox>

#include "app/common/announcement.h"
#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

constexpr char kParler[] =
    "parler: grupa pierwsza, czasownik posiłkowy avoir, przechodni i nieprzechodni.";

}  // namespace

class SpokenSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    program_ = std::make_unique<EditedProgram>();
    heard_.clear();
    app::announceTo([this](const QString& sentence) { heard_ += sentence; });
  }
  void cleanup() {
    program_.reset();
    app::announceTo({});
  }

  void enterTellsGroupAuxiliaryAndTransitivity();
  void aRefusedVerbTellsNothing();
  void enteringAndLeavingEditModeIsTold();
  void aSaveIsTold();
  void aVerbOfTheUsersOwnIsTold();
  void theInformationCanBeAskedFor();
  void theEntryBoxIsReachedFromAFormWithoutConjugating();
  void theEntryBoxIsReachedFromTheList();
  void aDeletionIsTold();
  void theNextTipIsTold();
  void whatIsToldOfOneDoingIsToldTogether();
  void theNewAuxiliaryIsTold();
  void aChoiceByKeyIsTold();

 private:
  [[nodiscard]] bool isHeard(const QString& part) const {
    return QTest::qWaitFor([&] { return !heard_.filter(part).isEmpty(); });
  }
  QDialog& openList() const {
    program_->trigger("mnuEdycjaLista");
    auto& list = program_->widget<QDialog>("frmLista");
    if (!QTest::qWaitForWindowActive(&list)) qFatal("the list does not become active");
    return list;
  }

  QStringList heard_;
  std::unique_ptr<EditedProgram> program_;
};

void SpokenSuite::enterTellsGroupAuxiliaryAndTransitivity() {
  program_->conjugate("parler");
  QTRY_VERIFY(heard_.contains(kParler));
  QVERIFY(program_->entry().hasFocus());
}

void SpokenSuite::aRefusedVerbTellsNothing() {
  program_->conjugate("qqq");
  program_->conjugate("parler");
  QTRY_VERIFY(heard_.contains(kParler));
  QVERIFY(heard_.filter("qqq").isEmpty());
}

void SpokenSuite::enteringAndLeavingEditModeIsTold() {
  program_->conjugate("parler");
  program_->trigger("mnuEdycjaEdytujCzasownik");
  QVERIFY(isHeard("Edycja czasownika parler."));
  program_->trigger("mnuEdycjaEdytujCzasownik");
  QVERIFY(isHeard("Koniec edycji."));
}

void SpokenSuite::aSaveIsTold() {
  program_->edit("parler");
  program_->trigger("mnuPlikZapiszCzasownik");
  QVERIFY(isHeard("Zapisano czasownik parler."));
}

void SpokenSuite::aVerbOfTheUsersOwnIsTold() {
  program_->edit("parler");
  program_->trigger("mnuPlikZapiszCzasownik");
  program_->conjugate("parler");
  QVERIFY(isHeard("Formy z Twojego pliku."));
}

void SpokenSuite::theInformationCanBeAskedFor() {
  program_->conjugate("parler");
  QVERIFY(isHeard(kParler));
  program_->box(7).setFocus();
  heard_.clear();
  QTest::keyClick(&program_->box(7), Qt::Key_I, Qt::ControlModifier);
  QVERIFY(isHeard(kParler));
  QVERIFY(program_->box(7).hasFocus());
}

void SpokenSuite::theEntryBoxIsReachedFromAFormWithoutConjugating() {
  program_->conjugate("parler");
  program_->entry().setText("finir");
  program_->box(7).setFocus();
  QTest::keyClick(&program_->box(7), Qt::Key_B, Qt::ControlModifier);
  QVERIFY(program_->entry().hasFocus());
  QCOMPARE(program_->entry().selectedText(), "finir");
  QCOMPARE(program_->form(0), "parle");
}

void SpokenSuite::theEntryBoxIsReachedFromTheList() {
  QTest::keyClick(&openList(), Qt::Key_B, Qt::ControlModifier);
  QTRY_VERIFY(program_->entry().hasFocus());
}

void SpokenSuite::aDeletionIsTold() {
  program_->edit("parler");
  program_->trigger("mnuPlikZapiszCzasownik");
  openList().findChild<QPushButton*>("cmdUsuń")->click();
  QVERIFY(isHeard("Usunięto czasownik parler."));
}

void SpokenSuite::theNextTipIsTold() {
  bool isTold = false;
  QTimer::singleShot(0, [&] {
    auto* tip = QApplication::activeModalWidget();
    tip->findChild<QPushButton*>("cmdNextTip")->click();
    const QString text = tip->findChild<QLabel*>("lblTipText")->text();
    isTold = QTest::qWaitFor([&] { return heard_.contains(text); });
    static_cast<QDialog*>(tip)->reject();
  });
  program_->program.tips().show();
  QVERIFY(isTold);
}

void SpokenSuite::whatIsToldOfOneDoingIsToldTogether() {
  app::announce("Jedno.");
  app::announce("Drugie.");
  QVERIFY(isHeard("Jedno. Drugie."));
  QCOMPARE(heard_.size(), 1);
}

void SpokenSuite::theNewAuxiliaryIsTold() {
  program_->conjugate("monter");
  QTest::keyClick(&program_->auxiliary(), Qt::Key_Space);
  QVERIFY(isHeard("se conjugué avec être"));
}

void SpokenSuite::aChoiceByKeyIsTold() {
  auto& choice = *openList().findChild<QComboBox*>("cmbLista");
  QTest::keyClick(&choice, Qt::Key_Down);
  QTRY_VERIFY(heard_.contains("a"));
}

std::unique_ptr<QObject> spokenSuite() { return std::make_unique<SpokenSuite>(); }

}  // namespace odmiennik::window_test

#include "spoken_test.moc"
