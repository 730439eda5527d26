// SPDX-License-Identifier: GPL-3.0-or-later
// The window in which a form is looked for.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "app/common/announcement.h"
#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class FindingSuite : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();

  void ctrlFOpensItBesideAUsableMainWindow();
  void itOpensWideEnoughForItsReadings();
  void theReadingsFollowEachKey();
  void theMostFrequentVerbStandsFirst();
  void whatIsNotFoundIsGuessedAtOrSaid();
  void enterConjugatesAndLeadsToTheBoxOfTheForm();
  void aDoubleClickDoesTheSame();
  void theArrowsChooseFromTheField();
  void aRefusedWordIsLookedFor();
  void aVerbThatIsShownIsNotLookedFor();
  void theLetterButtonsTypeIntoItsField();
  void theLetterButtonsTypeIntoABoxAgainOnceTheUserIsThere();
  void theKeyForLettersLeadsToThem();
  void anEditedVerbIsAskedAbout();
  void aSaveThatIsRefusedStopsThere();
  void aSavedVerbOfTheUsersIsFound();
  void foreignLettersAreNotEntered();
  void theAnswerIsHeard();
  void escapeClosesItAndItsWordStays();

 private:
  void open() const;
  [[nodiscard]] QLineEdit& field() const { return program_->widget<QLineEdit>("txtForma"); }
  [[nodiscard]] QListWidget& list() const { return program_->widget<QListWidget>("lstOdczytania"); }
  [[nodiscard]] QString answer() const { return program_->widget<QLabel>("lblOdpowiedź").text(); }
  [[nodiscard]] QStringList readings() const {
    QStringList texts;
    for (int row = 0; row < list().count(); ++row) texts += list().item(row)->text();
    return texts;
  }
  void clickLetter(int index) const {
    QTest::mouseClick(&program_->widget<QPushButton>(QString("cmdFrancuskaLitera_%1").arg(index)),
                      Qt::LeftButton);
  }

  std::unique_ptr<EditedProgram> program_;
};

void FindingSuite::init() { program_ = std::make_unique<EditedProgram>(); }

void FindingSuite::cleanup() {
  app::announceTo({});
  program_.reset();
}

void FindingSuite::open() const {
  program_->item("mnuCzasownikZnajdź").trigger();
  QTRY_VERIFY(program_->window.findChild<QLineEdit*>("txtForma") != nullptr);
  QVERIFY(QTest::qWaitForWindowActive(field().window()));
}

void FindingSuite::ctrlFOpensItBesideAUsableMainWindow() {
  QTest::keyClick(&program_->entry(), Qt::Key_F, Qt::ControlModifier);
  QTRY_VERIFY(program_->window.findChild<QLineEdit*>("txtForma") != nullptr);
  QTRY_VERIFY(field().hasFocus());
  QVERIFY(!field().window()->isModal());
  QVERIFY(readings().isEmpty());
  QCOMPARE(answer(), "");
}

void FindingSuite::itOpensWideEnoughForItsReadings() {
  open();
  for (const char* form : {"allions", "j'aurais préféré"}) {
    field().setText(form);
    for (int row = 0; row < list().count(); ++row) {
      const int height = list().visualItemRect(list().item(row)).height();
      QVERIFY2(height < 2 * list().fontMetrics().lineSpacing(), qPrintable(readings()[row]));
    }
  }
}

void FindingSuite::theReadingsFollowEachKey() {
  open();
  QTest::keyClicks(&field(), "fu");
  QTest::keyClicks(&field(), "s");
  QCOMPARE(readings(), (QStringList{"je fus – être, Indicatif passé simple, je",
                                    "tu fus – être, Indicatif passé simple, tu"}));
  QCOMPARE(answer(), "Możliwości: 2");
  QTest::keyClick(&field(), Qt::Key_Backspace);
  QVERIFY(!readings().contains("je fus – être, Indicatif passé simple, je"));
}

void FindingSuite::theMostFrequentVerbStandsFirst() {
  open();
  field().setText("suis");
  QCOMPARE(readings().first(), "je suis – être, Indicatif présent, je");
  QCOMPARE(list().currentRow(), 0);
}

void FindingSuite::whatIsNotFoundIsGuessedAtOrSaid() {
  open();
  field().setText("manjeons");
  QCOMPARE(answer(), "Nie znaleziono takiej formy, może: 2");
  QCOMPARE(readings().first(), "nous mangeons – manger, Indicatif présent, nous");
  field().setText("preferais");
  QCOMPARE(answer(), "Z innymi akcentami: 2");
  field().setText("xq");
  QCOMPARE(answer(), "Nie znaleziono takiej formy.");
  QVERIFY(
      !program_->widget<QDialog>("frmZnajdź").findChild<QPushButton*>("cmdOdmień")->isEnabled());
}

void FindingSuite::enterConjugatesAndLeadsToTheBoxOfTheForm() {
  open();
  field().setText("que nous allions");
  QTest::keyClick(&field(), Qt::Key_Return);
  QTRY_COMPARE(program_->entry().text(), "aller");
  QTRY_VERIFY(program_->box(51).hasFocus());
  QCOMPARE(program_->box(51).selectedText(), "allions");
  QVERIFY(field().isVisible());
}

void FindingSuite::aDoubleClickDoesTheSame() {
  open();
  field().setText("fus");
  const QPoint place = list().visualItemRect(list().item(1)).center();
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, place);
  QTRY_VERIFY(program_->box(13).hasFocus());
  QCOMPARE(program_->entry().text(), "être");
}

void FindingSuite::theArrowsChooseFromTheField() {
  open();
  field().setText("fus");
  QTest::keyClick(&field(), Qt::Key_Down);
  QTest::keyClick(&field(), Qt::Key_Enter);
  QTRY_VERIFY(program_->box(13).hasFocus());
}

void FindingSuite::aRefusedWordIsLookedFor() {
  program_->conjugate("allions");
  open();
  QCOMPARE(field().text(), "allions");
  QCOMPARE(field().selectedText(), "allions");
  QCOMPARE(readings().first(), "nous allions – aller, Indicatif imparfait, nous");
}

void FindingSuite::aVerbThatIsShownIsNotLookedFor() {
  program_->conjugate("parler");
  open();
  QCOMPARE(field().text(), "");
}

void FindingSuite::theLetterButtonsTypeIntoItsField() {
  open();
  QTest::keyClicks(&field(), "t");
  program_->window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&program_->window));
  clickLetter(5);
  QCOMPARE(field().text(), "tê");
  QTRY_VERIFY(field().hasFocus());
  QVERIFY(!program_->entry().text().contains("ê"));
}

void FindingSuite::theLetterButtonsTypeIntoABoxAgainOnceTheUserIsThere() {
  open();
  program_->window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&program_->window));
  QTest::mouseClick(&program_->entry(), Qt::LeftButton);
  program_->entry().clear();
  clickLetter(5);
  QCOMPARE(program_->entry().text(), "ê");
  QCOMPARE(field().text(), "");
}

void FindingSuite::theKeyForLettersLeadsToThem() {
  open();
  QTest::keyClick(&field(), Qt::Key_F6);
  auto& letter = program_->widget<QPushButton>("cmdFrancuskaLitera_0");
  QTRY_VERIFY(letter.hasFocus());
  QTest::keyClick(&letter, Qt::Key_Space);
  QCOMPARE(field().text(), letter.text());
}

void FindingSuite::anEditedVerbIsAskedAbout() {
  program_->edit("parler");
  program_->box(0).setText("parrle");
  program_->messages.answer = dictionary::Button::no;
  open();
  field().setText("fus");
  QTest::keyClick(&field(), Qt::Key_Return);
  QTRY_VERIFY(program_->box(12).hasFocus());
  QCOMPARE(program_->messages.shown.front(), dictionary::MessageId::saveEditedVerb);
  QVERIFY(!program_->program.editing().isEditing());
}

// A form with a comma is questioned, and the question answered No keeps edit mode.
void FindingSuite::aSaveThatIsRefusedStopsThere() {
  program_->edit("parler");
  program_->box(0).setText("\"parle");
  program_->messages.answer = dictionary::Button::yes;
  open();
  field().setText("fus");
  QTest::keyClick(&field(), Qt::Key_Return);
  QTRY_VERIFY(!program_->messages.shown.empty());
  QCoreApplication::processEvents();
  QVERIFY(program_->program.editing().isEditing());
  QCOMPARE(program_->entry().text(), "parler");
}

void FindingSuite::aSavedVerbOfTheUsersIsFound() {
  open();
  field().setText("zzblogue");
  QVERIFY(readings().isEmpty());
  dictionary::UserVerbRecord record;
  record.forms[0] = "zzblogue";
  record.forms[engine::slot::kInfinitive] = "zzbloguer";
  program_->program.userVerbs().save(record);
  open();
  QTRY_COMPARE(readings(), QStringList{"je zzblogue – zzbloguer, Indicatif présent, je; własny"});
}

void FindingSuite::foreignLettersAreNotEntered() {
  open();
  QTest::sendKeyEvent(QTest::Click, &field(), Qt::Key_unknown, "ł", Qt::NoModifier);
  QTest::keyClicks(&field(), "fus");
  QCOMPARE(field().text(), "fus");
}

void FindingSuite::theAnswerIsHeard() {
  QStringList heard;
  app::announceTo([&](const QString& sentence) { heard += sentence; });
  open();
  field().setText("fus");
  QTRY_VERIFY(heard.join(' ').contains("Możliwości: 2"));
  QCOMPARE(field().accessibleDescription(), "Możliwości: 2");
}

void FindingSuite::escapeClosesItAndItsWordStays() {
  open();
  field().setText("fus");
  QTest::keyClick(&field(), Qt::Key_Escape);
  QTRY_VERIFY(!field().isVisible());
  open();
  QCOMPARE(field().selectedText(), "fus");
}

std::unique_ptr<QObject> findingSuite() { return std::make_unique<FindingSuite>(); }

}  // namespace odmiennik::window_test

#include "finding_test.moc"
