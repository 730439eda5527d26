// SPDX-License-Identifier: GPL-3.0-or-later
// Giving up one's own forms of a verb for the program's.
#include <QListWidget>

#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;
using Messages = std::vector<MessageId>;

constexpr char kItem[] = "mnuCzasownikPrzywróć";

}  // namespace

class RestoringSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<EditedProgram>(); }
  void cleanup() { program_.reset(); }

  void theItemIsEnabledForAVerbOfTheUsersOwn();
  void whileAVerbIsEditedTheItemIsDisabled();
  void afterTheQuestionTheProgramsFormsAreBack();
  void answeredNoNothingChanges();
  void aDeletionThatFailsChangesNothing();
  void aVerbDeletedInTheListMeanwhileIsConjugatedAnew();
  void aReflexiveVerbIsRestoredFromItsRecord();
  void aVerbOnlyTheUserKnewIsConjugatedByRule();
  void resetujAnsweredCancelKeepsTheItem();

 private:
  // Saves forms of the user's own for a verb, which is shown then.
  void save(const QString& infinitive) {
    program_->edit(infinitive);
    program_->box(0).setText("parlix");
    program_->trigger("mnuPlikZapiszCzasownik");
    program_->messages.shown.clear();
    QCOMPARE(program_->form(0), "parlix");
  }
  [[nodiscard]] bool isOffered() const { return program_->item(kItem).isEnabled(); }

  std::unique_ptr<EditedProgram> program_;
};

void RestoringSuite::theItemIsEnabledForAVerbOfTheUsersOwn() {
  QVERIFY(!isOffered());
  save("parler");
  QVERIFY(isOffered());
  QVERIFY(program_->window.isUsersOwn());
  program_->conjugate("aller");
  QVERIFY(!isOffered());
  program_->conjugate("finir");
  QVERIFY(!isOffered());
  program_->conjugate("parler");
  QVERIFY(isOffered());
}

void RestoringSuite::whileAVerbIsEditedTheItemIsDisabled() {
  save("parler");
  program_->trigger("mnuEdycjaEdytujCzasownik");
  QVERIFY(!isOffered());
  program_->trigger("mnuEdycjaEdytujCzasownik");
  QVERIFY(isOffered());
  program_->trigger("mnuEdycjaNowyCzasownik");
  QVERIFY(!isOffered());
}

void RestoringSuite::afterTheQuestionTheProgramsFormsAreBack() {
  save("parler");
  program_->entry().setText("fin");
  program_->messages.answer = Button::yes;
  program_->trigger(kItem);
  QCOMPARE(program_->messages.shown, Messages{MessageId::restoreProgramForms});
  QCOMPARE(program_->form(0), "parle");
  QCOMPARE(program_->entry().text(), "parler");
  QCOMPARE(program_->entry().selectedText(), "parler");
  QCOMPARE(program_->label("lblGrupaWartość"), "pierwsza");
  QCOMPARE(program_->count(), 0);
  QVERIFY(program_->userVerbs().isEmpty());
  QVERIFY(!isOffered());
  QVERIFY(!program_->isEditing());
}

void RestoringSuite::answeredNoNothingChanges() {
  save("parler");
  const QByteArray before = program_->userVerbs();
  program_->messages.answer = Button::no;
  program_->trigger(kItem);
  QCOMPARE(program_->messages.shown, Messages{MessageId::restoreProgramForms});
  QCOMPARE(program_->form(0), "parlix");
  QCOMPARE(program_->userVerbs(), before);
  QCOMPARE(program_->count(), 1);
  QVERIFY(isOffered());
}

void RestoringSuite::aDeletionThatFailsChangesNothing() {
  save("parler");
  const auto file = program_->folder.path() / "Czasowniki.dat";
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  program_->messages.answer = Button::yes;
  program_->trigger(kItem);
  QVERIFY(program_->messages.shown.size() > 1);
  QCOMPARE(program_->form(0), "parlix");
  QCOMPARE(program_->count(), 1);
  QVERIFY(isOffered());
}

void RestoringSuite::aVerbDeletedInTheListMeanwhileIsConjugatedAnew() {
  save("parler");
  program_->trigger("mnuEdycjaLista");
  program_->widget<QPushButton>("cmdUsuń").click();
  QCoreApplication::processEvents();
  QCOMPARE(program_->count(), 0);
  program_->messages.answer = Button::yes;
  program_->trigger(kItem);
  QCOMPARE(program_->form(0), "parle");
  QVERIFY(!isOffered());
}

void RestoringSuite::aReflexiveVerbIsRestoredFromItsRecord() {
  save("laver");
  program_->conjugate("se laver");
  QCOMPARE(program_->form(0), "me parlix");
  program_->messages.answer = Button::yes;
  program_->trigger(kItem);
  QCOMPARE(program_->form(0), "me lave");
  QCOMPARE(program_->count(), 0);
}

void RestoringSuite::aVerbOnlyTheUserKnewIsConjugatedByRule() {
  save("zyzer");
  program_->messages.answers[MessageId::restoreProgramForms] = Button::yes;
  program_->trigger(kItem);
  QCOMPARE(program_->form(0), "zyze");
  const Messages expected{MessageId::restoreProgramForms, MessageId::conjugatedRegularly};
  QCOMPARE(program_->messages.shown, expected);
}

// Nothing has been looked up: the shown verb is still the user's.
void RestoringSuite::resetujAnsweredCancelKeepsTheItem() {
  save("parler");
  program_->messages.answer = Button::cancel;
  program_->conjugate("resetuj");
  QCOMPARE(program_->messages.shown, Messages{MessageId::settingsWillBeReset});
  QVERIFY(isOffered());
  program_->messages.answer = Button::yes;
  program_->trigger(kItem);
  QCOMPARE(program_->form(0), "parle");
}

std::unique_ptr<QObject> restoringSuite() { return std::make_unique<RestoringSuite>(); }

}  // namespace odmiennik::window_test

#include "restoring_test.moc"
