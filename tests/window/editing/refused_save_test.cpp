// SPDX-License-Identifier: GPL-3.0-or-later
// Whoever asks whether to save an edited verb: a save that is refused or fails loses nothing.
#include <QComboBox>

#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;

constexpr int kLetterA = 1;

bool isButtonOfTheList(const QString& command) { return command.startsWith("cmd"); }

}  // namespace

class RefusedSaveSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    program_ = std::make_unique<EditedProgram>();
    program_->messages.answer = Button::yes;
  }
  void cleanup() { program_.reset(); }

  void aRefusedSaveKeepsEverything_data() { nameCommandsThatAsk(); }
  void aRefusedSaveKeepsEverything();
  void aFailedSaveKeepsEverything_data() { nameCommandsThatAsk(); }
  void aFailedSaveKeepsEverything();
  void aFormThatBeginsWithAQuoteIsNotSaved();
  void aCommaAnsweredNoKeepsEverything_data() { nameCommandsThatAsk(); }
  void aCommaAnsweredNoKeepsEverything();
  void aCommaAnsweredYesIsSaved();
  void aParticipleWithACommaIsSavedUnasked();

 private:
  void nameCommandsThatAsk();
  void edit();
  void pressInList(const QString& button) const;
  void command(const QString& name);
  void verifyNothingIsLost(const QString& infinitive) const;

  std::unique_ptr<EditedProgram> program_;
};

void RefusedSaveSuite::nameCommandsThatAsk() {
  QTest::addColumn<QString>("name");
  for (const char* name :
       {"mnuEdycjaOdmień", "mnuEdycjaNowyCzasownik", "mnuEdycjaEdytujCzasownik", "cmdOdmień",
        "cmdEdytuj", "cmdNowy", "cmdDrukuj", "close", "session", "demonstration"})
    QTest::newRow(name) << name;
}

void RefusedSaveSuite::edit() {
  program_->edit("parler");
  program_->box(0).setText("parlix");
}

// On a verb of a letter: the user has none.
void RefusedSaveSuite::pressInList(const QString& button) const {
  program_->trigger("mnuEdycjaLista");
  program_->widget<QComboBox>("cmbLista").setCurrentIndex(kLetterA);
  program_->widget<QPushButton>(button).click();
  QCoreApplication::processEvents();
  program_->widget<QDialog>("frmLista").close();
}

// Gives the command that has the question asked.
void RefusedSaveSuite::command(const QString& name) {
  if (name == "close") {
    QVERIFY(!program_->window.close());
  } else if (name == "session") {
    QVERIFY(!program_->program.closing().prepareForSessionEnd(true));
  } else if (name == "demonstration") {
    program_->program.demonstration().run(0);
    QVERIFY(!program_->program.demonstration().isRunning());
  } else if (isButtonOfTheList(name)) {
    pressInList(name);
  } else {
    program_->trigger(name.toUtf8().constData());
  }
}

void RefusedSaveSuite::verifyNothingIsLost(const QString& infinitive) const {
  QVERIFY(program_->isEditing());
  QVERIFY(program_->window.isVisible());
  QCOMPARE(program_->form(0), "parlix");
  QCOMPARE(program_->entry().text(), infinitive);
  QCOMPARE(program_->window.windowTitle(), "Odmiennik - edycja \"" + infinitive + '"');
  QVERIFY(!program_->box(0).isReadOnly());
  QCOMPARE(program_->ends, 0);
}

void RefusedSaveSuite::aRefusedSaveKeepsEverything() {
  QFETCH(QString, name);
  edit();
  program_->entry().setText("chanté");
  command(name);
  QVERIFY(program_->messages.shown.size() >= 2);
  QVERIFY(program_->messages.shown.back() == MessageId::infinitiveNeeded);
  verifyNothingIsLost("chanté");
}

void RefusedSaveSuite::aFailedSaveKeepsEverything() {
  QFETCH(QString, name);
  edit();
  std::filesystem::create_directory(program_->folder.path() / "Czasowniki.dat");
  command(name);
  QVERIFY(program_->messages.shown.size() >= 2);
  QVERIFY(program_->messages.shown.back() == MessageId::userVerbsNotSaved);
  verifyNothingIsLost("parler");
  QCOMPARE(program_->count(), 0);
}

// Its record could not be read back.
void RefusedSaveSuite::aFormThatBeginsWithAQuoteIsNotSaved() {
  edit();
  program_->box(7).setText("\"parlais");
  program_->trigger("mnuPlikZapiszCzasownik");
  QCOMPARE(program_->messages.shown, std::vector<MessageId>{MessageId::formCannotBeSaved});
  verifyNothingIsLost("parler");
  QVERIFY(program_->userVerbs().isNull());
  QCOMPARE(QApplication::focusWidget(), &program_->box(7));
  QCOMPARE(program_->box(7).selectedText(), "\"parlais");
}

// The file divides forms by commas.
void RefusedSaveSuite::aCommaAnsweredNoKeepsEverything() {
  QFETCH(QString, name);
  edit();
  program_->box(7).setText("parlais, parlaix");
  program_->messages.answers[MessageId::commaInForm] = Button::no;
  command(name);
  QVERIFY(program_->messages.shown.size() >= 2);
  QVERIFY(program_->messages.shown.back() == MessageId::commaInForm);
  verifyNothingIsLost("parler");
  QVERIFY(program_->userVerbs().isNull());
  QTRY_COMPARE(QApplication::focusWidget(), &program_->box(7));
}

void RefusedSaveSuite::aCommaAnsweredYesIsSaved() {
  edit();
  program_->box(7).setText("parlais, parlaix");
  program_->trigger("mnuPlikZapiszCzasownik");
  QCOMPARE(program_->messages.shown, std::vector<MessageId>{MessageId::commaInForm});
  QVERIFY(!program_->isEditing());
  QCOMPARE(program_->fields().value(7), "parlais");
  QCOMPARE(program_->fields().value(8), " parlaix");
}

void RefusedSaveSuite::aParticipleWithACommaIsSavedUnasked() {
  program_->edit("devoir");
  QCOMPARE(program_->form(99), "dû, due");
  program_->trigger("mnuPlikZapiszCzasownik");
  QVERIFY(program_->messages.shown.empty());
  QVERIFY(!program_->isEditing());
}

std::unique_ptr<QObject> refusedSaveSuite() { return std::make_unique<RefusedSaveSuite>(); }

}  // namespace odmiennik::window_test

#include "refused_save_test.moc"
