// SPDX-License-Identifier: GPL-3.0-or-later
// The file of the user's own verbs, as the user meets it in the window.
#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <fstream>

#include "tests/unit/dictionary/program_files.h"
#include "tests/window/edited_program.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class OwnVerbsSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { program_ = std::make_unique<EditedProgram>(); }
  void cleanup() { program_.reset(); }

  void aBoxIsSavedTrimmed();
  void aFormWithACommaComesBackSplit();
  void withCountZeroTheOldFileIsKeptBesideTheNewOne();
  void aFileThatAnotherProgramHasWrittenMeanwhileIsCountedAndKept();
  void aVerbThatStandsTwiceIsDeletedTwiceAndCountedOnce();
  void aDeletionLeavesTheShownFormsAndTheirAuxiliary();
  void aPlaceholderIsCompletedAndAnEmptyFormIsNot();
  void theUsersAvoirWinsOverTheBuiltInOne();
  void theListShowsAVerbThatWasSavedMeanwhile();
  void deliberateAFolderThatEndsInASeparatorIsTheCurrentOne();

 private:
  void saveForm(const QString& infinitive, int slot, const QString& form) const {
    program_->edit(infinitive);
    program_->box(slot).setText(form);
    program_->trigger("mnuPlikZapiszCzasownik");
  }
  [[nodiscard]] QListWidget& openList() const {
    program_->trigger("mnuEdycjaLista");
    return program_->widget<QListWidget>("lstCzasowniki");
  }

  std::unique_ptr<EditedProgram> program_;
};

void OwnVerbsSuite::aBoxIsSavedTrimmed() {
  saveForm("parler", 3, "  parlons donc ");
  QCOMPARE(program_->fields().value(3), "parlons donc");
  program_->conjugate("parler");
  QCOMPARE(program_->form(3), "parlons donc");
}

// deliberate: the format quotes nothing, and what stands behind the comma shifts.
void OwnVerbsSuite::aFormWithACommaComesBackSplit() {
  saveForm("parler", 99, "parlé, dit");
  program_->conjugate("parler");
  QCOMPARE(program_->form(99), "parlé");
  QCOMPARE(program_->form(100), "dit");
  QCOMPARE(program_->form(98), "parlant");
}

void OwnVerbsSuite::withCountZeroTheOldFileIsKeptBesideTheNewOne() {
  const std::string old = testing::linesOf({"aimer", "finir"});
  std::ofstream(program_->folder.path() / "Czasowniki.dat", std::ios::binary) << old;
  app::Program later({.folder = Utf8Text(asUtf8(program_->folder.path().string())),
                      .messages = program_->messages,
                      .store = program_->store,
                      .end = [] {}});
  later.start();
  later.userVerbs().save(testing::verb("parler"));
  QCOMPARE(program_->userVerbs().count('\n'), 1);
  QCOMPARE(program_->fields().value(96), "parler");
  QCOMPARE(later.userVerbs().count(), 1);
  QFile kept(QString::fromStdString((program_->folder.path() / "Czasowniki.bak").string()));
  QVERIFY(kept.open(QIODevice::ReadOnly));
  QCOMPARE(kept.readAll(), QByteArray::fromStdString(old));
}

void OwnVerbsSuite::aFileThatAnotherProgramHasWrittenMeanwhileIsCountedAndKept() {
  std::ofstream(program_->folder.path() / "Czasowniki.dat", std::ios::binary)
      << testing::linesOf({"aimer", "finir"});
  saveForm("parler", 0, "parlix");
  QCOMPARE(program_->userVerbs().count('\n'), 3);
  QCOMPARE(program_->count(), 3);
}

void OwnVerbsSuite::aVerbThatStandsTwiceIsDeletedTwiceAndCountedOnce() {
  saveForm("parler", 0, "parlix");
  saveForm("finir", 0, "finix");
  QByteArray lines = program_->userVerbs();
  lines += lines.left(lines.indexOf('\n') + 1);
  std::ofstream(program_->folder.path() / "Czasowniki.dat", std::ios::binary)
      << lines.toStdString();
  const QListWidget& list = openList();
  QCOMPARE(list.count(), 3);
  program_->widget<QPushButton>("cmdUsuń").click();
  QTRY_COMPARE(list.count(), 1);
  QCOMPARE(program_->userVerbs().count('\n'), 1);
  // A file changed from outside counts as many verbs as it has records: three, less one deletion.
  QCOMPARE(program_->count(), 2);
}

void OwnVerbsSuite::aDeletionLeavesTheShownFormsAndTheirAuxiliary() {
  program_->edit("parler");
  program_->box(0).setText("parlix");
  program_->auxiliary().click();
  program_->trigger("mnuPlikZapiszCzasownik");
  const QListWidget& list = openList();
  QCOMPARE(list.count(), 1);
  program_->widget<QPushButton>("cmdUsuń").click();
  QTRY_COMPARE(list.count(), 0);
  QCOMPARE(program_->form(0), "parlix");
  QCOMPARE(program_->form(96), "parler");
  QVERIFY(!program_->auxiliary().isChecked());
}

// The built-in falloir has both.
void OwnVerbsSuite::aPlaceholderIsCompletedAndAnEmptyFormIsNot() {
  program_->conjugate("falloir");
  QCOMPARE(program_->form(26), "a fallu");
  QCOMPARE(program_->form(0), " -- ");
}

void OwnVerbsSuite::theUsersAvoirWinsOverTheBuiltInOne() {
  program_->conjugate("avoir");
  QCOMPARE(program_->form(0), "ai");
  saveForm("avoir", 0, "aix");
  program_->conjugate("parler");
  program_->conjugate("avoir");
  QCOMPARE(program_->form(0), "aix");
}

void OwnVerbsSuite::theListShowsAVerbThatWasSavedMeanwhile() {
  const QListWidget& list = openList();
  QCOMPARE(list.count(), 0);
  saveForm("parler", 0, "parlix");
  QCOMPARE(list.count(), 1);
  QVERIFY(program_->widget<QPushButton>("cmdUsuń").isEnabled());
  saveForm("finir", 0, "finix");
  QCOMPARE(list.count(), 2);
}

// deliberate: installed at a drive's root, the program names its files relative to the current
// folder.
void OwnVerbsSuite::deliberateAFolderThatEndsInASeparatorIsTheCurrentOne() {
  const scratch::ScratchFolder current;
  const QString before = QDir::currentPath();
  QVERIFY(QDir::setCurrent(QString::fromStdString(current.path().string())));
  {
    AnsweredMessages messages;
    app::Program atRoot({.folder = Utf8Text(asUtf8(program_->folder.path().string())) + "/",
                         .messages = messages,
                         .store = program_->store,
                         .end = [] {}});
    atRoot.start();
  }
  QDir::setCurrent(before);
  QVERIFY(std::filesystem::exists(current.path() / "Werbolin.cfg"));
}

std::unique_ptr<QObject> ownVerbsSuite() { return std::make_unique<OwnVerbsSuite>(); }

}  // namespace odmiennik::window_test

#include "own_verbs_test.moc"
