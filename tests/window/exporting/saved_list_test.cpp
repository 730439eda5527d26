// SPDX-License-Identifier: GPL-3.0-or-later
// Saving of whole lists from the list window.
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QProgressBar>

#include "app/common/announcement.h"
#include "app/exporting/saving_window.h"
#include "dictionary/verb_index.h"
#include "tests/unit/dictionary/faulty_files.h"
#include "tests/window/exporting/file_hand.h"
#include "tests/window/list_under_test.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using app::SavedKind;
using dictionary::Button;
using dictionary::MessageId;

constexpr int kLetterB = 2;  // some hundreds of verbs
constexpr int kLetterK = 11;
constexpr int kLongMilliseconds = 50000;

// A program whose user has verbs, with its list open.
struct ListedProgram {
  explicit ListedProgram(const std::vector<std::string_view>& verbs,
                         disk::FileSystem& files = disk::systemFiles())
      : run(filled(home, verbs), files) {
    run.program.start();
    app::menuItem(*run.program.window().menuBar(), "mnuEdycjaLista").trigger();
    if (!QTest::qWaitFor([&] { return findList() != nullptr; })) qFatal("no list");
    run.messages.shown.clear();
  }

  static ProgramHome& filled(ProgramHome& home, const std::vector<std::string_view>& verbs) {
    if (verbs.empty()) return home;
    home.write("Czasowniki.dat", testing::linesOf(verbs));
    home.write("Werbolin.cfg", std::to_string(verbs.size()) + "\r\n255\r\n65280\r\n41\r\n1112\r\n");
    return home;
  }

  [[nodiscard]] QDialog* findList() { return run.program.window().findChild<QDialog*>("frmLista"); }
  [[nodiscard]] app::SavingWindow* saving() {
    return run.program.window().findChild<app::SavingWindow*>();
  }
  [[nodiscard]] QString path(const QString& name) const {
    return QDir(QString::fromStdString(place.path().string())).filePath(name);
  }
  [[nodiscard]] QByteArray content(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  [[nodiscard]] bool isPlaceEmpty() const { return place.names().empty(); }

  // Asks for the chosen list to be saved; returns when the file has been named.
  void save(FileHand& hand, int choice = 0) {
    run.widget<QComboBox>("cmbLista").setCurrentIndex(choice);
    run.widget<QPushButton>("cmdZapiszListę").click();
    if (!QTest::qWaitFor([&] { return hand.dialogs > 0; })) qFatal("no dialog");
  }
  // The same, and that it has begun.
  void begin(FileHand& hand, int choice) {
    save(hand, choice);
    if (!QTest::qWaitFor([&] { return saving() != nullptr && saving()->isVisible(); }))
      qFatal("nothing is saved");
  }
  void waitForEnd() {
    if (!QTest::qWaitFor([&] { return saving() == nullptr; }, kLongMilliseconds))
      qFatal("it does not end");
  }

  testing::ProgramFolder place;
  ProgramHome home;
  ProgramRun run;
};

}  // namespace

class SavedListSuite : public QObject {
  Q_OBJECT

 private slots:
  void theButtonHandsTheListOver();
  void anEmptyListCannotBeSaved();
  void theButtonIsNotThereForDeleting();
  void theUsersOwnVerbsAreSavedWithTheirForms();
  void aLetterIsSavedAsEveryKind_data();
  void aLetterIsSavedAsEveryKind();
  void allOfTheIndexIsSavedWhereItIsMeant();
  void theQuestionCanBeCancelled();
  void cancelLeavesNoFile_data();
  void cancelLeavesNoFile();
  void theFileThatIsReplacedStaysUntilTheEnd();
  void aFullDiskIsToldAndLeavesNothing();
  void theProgramAnswersMeanwhile();
  void theListIsNotClosedMeanwhile();
  void itWaitsUnderAQuestionAndGoesOnBehindIt();
  void aProgramThatEndsMeanwhileLeavesNoFile();
  void howFarItHasComeIsSaid();
};

void SavedListSuite::theButtonHandsTheListOver() {
  ListUnderTest program({"bâtir", "aimer"}, 2);
  program.press("cmdZapiszListę");
  QCOMPARE(program.savedLists.size(), std::size_t{1});
  QVERIFY(program.savedLists[0].letter.empty());
  QCOMPARE(program.savedLists[0].infinitives.size(), std::size_t{2});
  program.choose(kLetterK);
  program.press("cmdZapiszListę");
  QCOMPARE(program.savedLists[1].letter, Utf8View("k"));
  QCOMPARE(program.savedLists[1].infinitives.size(), program.entries().size());
}

void SavedListSuite::anEmptyListCannotBeSaved() {
  ListUnderTest program({}, 0);
  QVERIFY(!program.button("cmdZapiszListę").isEnabled());
  program.choose(kLetterX);
  QVERIFY(!program.button("cmdZapiszListę").isEnabled());
}

void SavedListSuite::theButtonIsNotThereForDeleting() {
  ListUnderTest program({"bâtir"}, 1);
  program.window.showFor(app::ListPurpose::deletion);
  QVERIFY(program.button("cmdZapiszListę").isHidden());
  program.window.showFor(app::ListPurpose::list);
  QVERIFY(program.button("cmdZapiszListę").isVisible());
}

void SavedListSuite::theUsersOwnVerbsAreSavedWithTheirForms() {
  ListedProgram program({"aimer", "bâtir"});
  FileHand hand(program.path("moje"), SavedKind::csv);
  program.save(hand);
  program.waitForEnd();
  QCOMPARE(hand.proposed, QStringList{"Moje czasowniki.csv"});
  QCOMPARE(program.content("moje.csv").count("\r\n"), 1 + 2 * 101);
  QVERIFY(program.content("moje.csv").contains("\r\nbâtir,"));
  QVERIFY(program.run.messages.shown.empty());
}

void SavedListSuite::aLetterIsSavedAsEveryKind_data() {
  QTest::addColumn<SavedKind>("kind");
  QTest::addColumn<QByteArray>("inEachVerb");
  QTest::newRow("k.pdf") << SavedKind::pdf << QByteArray("/Type /Page\n");
  QTest::newRow("k.html") << SavedKind::html << QByteArray("<section>");
  QTest::newRow("k.csv") << SavedKind::csv << QByteArray(",100,Participe,");
  QTest::newRow("k.txt") << SavedKind::anki << QByteArray("participe présent\t");
}

void SavedListSuite::aLetterIsSavedAsEveryKind() {
  QFETCH(SavedKind, kind);
  QFETCH(QByteArray, inEachVerb);
  ListedProgram program({});
  program.run.messages.answers[MessageId::saveWholeIndex] = Button::no;
  FileHand hand(program.path("k"), kind);
  program.save(hand, kLetterK);
  program.waitForEnd();
  QCOMPARE(program.content(QTest::currentDataTag()).count(inEachVerb), dictionary::verbCount('k'));
}

void SavedListSuite::allOfTheIndexIsSavedWhereItIsMeant() {
  ListedProgram program({});
  program.run.messages.answers[MessageId::saveWholeIndex] = Button::yes;
  FileHand hand(program.path("spis"), SavedKind::csv);
  program.save(hand, kLetterK);
  program.waitForEnd();
  QCOMPARE(hand.proposed, QStringList{"Wszystkie czasowniki.csv"});
  QCOMPARE(program.content("spis.csv").count(",100,Participe,"), 7342);
}

void SavedListSuite::theQuestionCanBeCancelled() {
  ListedProgram program({});
  program.run.messages.answers[MessageId::saveWholeIndex] = Button::cancel;
  FileHand hand(program.path("spis"));
  program.run.widget<QComboBox>("cmbLista").setCurrentIndex(kLetterK);
  program.run.widget<QPushButton>("cmdZapiszListę").click();
  QTRY_COMPARE(program.run.messages.shown, std::vector{MessageId::saveWholeIndex});
  QCoreApplication::processEvents();
  QCOMPARE(hand.dialogs, 0);
  QVERIFY(program.isPlaceEmpty());
}

void SavedListSuite::cancelLeavesNoFile_data() {
  QTest::addColumn<QString>("way");
  for (const char* way : {"button", "Escape", "close"}) QTest::newRow(way) << way;
}

void SavedListSuite::cancelLeavesNoFile() {
  QFETCH(QString, way);
  ListedProgram program({});
  FileHand hand(program.path("spis"));
  program.begin(hand, kLetterB);
  QTRY_VERIFY(program.saving()->findChild<QProgressBar*>()->value() > 0);
  if (way == "button")
    program.saving()->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
  else if (way == "Escape")
    QTest::keyClick(program.saving(), Qt::Key_Escape);
  else
    program.saving()->close();
  program.waitForEnd();
  QVERIFY(program.isPlaceEmpty());
  QVERIFY(program.findList()->isVisible());
}

void SavedListSuite::theFileThatIsReplacedStaysUntilTheEnd() {
  ListedProgram program({});
  program.place.write("spis.pdf", "old");
  FileHand hand(program.path("spis.pdf"));
  program.begin(hand, kLetterB);
  QTRY_VERIFY(program.saving()->findChild<QProgressBar*>()->value() > 0);
  QCOMPARE(program.content("spis.pdf"), QByteArray("old"));
  program.saving()->reject();
  program.waitForEnd();
  QCOMPARE(program.content("spis.pdf"), QByteArray("old"));
}

void SavedListSuite::aFullDiskIsToldAndLeavesNothing() {
  testing::FaultyFiles files(1000, testing::Afterwards::allSucceeds);
  ListedProgram program({}, files);
  files = testing::FaultyFiles(3, testing::Afterwards::allSucceeds);
  FileHand hand(program.path("spis"), SavedKind::html);
  program.save(hand, kLetterB);
  QTRY_COMPARE(program.run.messages.shown.back(), MessageId::fileNotSaved);
  program.waitForEnd();
  QVERIFY(program.isPlaceEmpty());
}

// Something that is to be done every ten milliseconds is done while some thousand verbs are saved.
void SavedListSuite::theProgramAnswersMeanwhile() {
  ListedProgram program({});
  FileHand hand(program.path("spis"));
  program.begin(hand, kLetterB);
  int turns = 0;
  QTimer other;
  connect(&other, &QTimer::timeout, &other, [&] { ++turns; });
  other.start(10);
  QTRY_VERIFY(turns >= 3);
  QVERIFY(program.saving() != nullptr);
  program.saving()->reject();
  program.waitForEnd();
}

void SavedListSuite::theListIsNotClosedMeanwhile() {
  ListedProgram program({});
  FileHand hand(program.path("spis"));
  program.begin(hand, kLetterB);
  program.findList()->close();
  QVERIFY(program.findList()->isVisible());
  program.saving()->reject();
  program.waitForEnd();
}

// The exit question, answered No.
void SavedListSuite::itWaitsUnderAQuestionAndGoesOnBehindIt() {
  ListedProgram program({});
  FileHand hand(program.path("spis"));
  program.begin(hand, kLetterB);
  QPointer<QDialog> box = new QDialog(program.saving());
  box->setModal(true);
  box->show();
  QTRY_COMPARE(QApplication::activeModalWidget(), box.data());
  const int before = program.saving()->findChild<QProgressBar*>()->value();
  program.saving()->reject();
  QTest::qWait(0);
  QVERIFY(program.saving()->isVisible());
  QCOMPARE(program.saving()->findChild<QProgressBar*>()->value(), before);
  delete box;
  QTRY_VERIFY(program.saving()->findChild<QProgressBar*>()->value() > before);
  program.saving()->reject();
  program.waitForEnd();
}

void SavedListSuite::aProgramThatEndsMeanwhileLeavesNoFile() {
  const testing::ProgramFolder place;
  {
    ListedProgram program({});
    FileHand hand(QDir(QString::fromStdString(place.path().string())).filePath("spis"));
    program.begin(hand, kLetterB);
    program.run.messages.answer = Button::yes;
    program.run.program.window().close();
    QCOMPARE(program.run.ends, 1);
    QVERIFY(!place.names().empty());
  }
  QVERIFY(place.names().empty());
}

void SavedListSuite::howFarItHasComeIsSaid() {
  QString said;
  app::announceTo([&](const QString& sentence) { said += sentence + '\n'; });
  const auto end = qScopeGuard([] { app::announceTo({}); });
  ListedProgram program({});
  program.run.messages.answers[MessageId::saveWholeIndex] = Button::no;
  FileHand hand(program.path("k"), SavedKind::csv);
  program.save(hand, kLetterK);
  program.waitForEnd();
  QTRY_VERIFY(said.contains("Zapisano plik k.csv."));
}

std::unique_ptr<QObject> savedListSuite() { return std::make_unique<SavedListSuite>(); }

}  // namespace odmiennik::window_test

#include "saved_list_test.moc"
