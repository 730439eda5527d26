// SPDX-License-Identifier: GPL-3.0-or-later
// Saving what the window shows.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <map>

#include "tests/unit/dictionary/faulty_files.h"
#include "tests/window/edited_program.h"
#include "tests/window/exporting/file_hand.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using app::SavedKind;
using dictionary::Button;
using dictionary::MessageId;
using Messages = std::vector<MessageId>;

constexpr char kSaveItem[] = "mnuPlikZapiszOdmianę";
constexpr char kCopyItem[] = "mnuEdycjaKopiujOdmianę";

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString told(const char* program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished()) qFatal("%s (package poppler-utils) does not run", program);
  return QString::fromUtf8(process.readAllStandardOutput());
}

}  // namespace

class ExportingSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    program_ = std::make_unique<EditedProgram>();
    place_ = std::make_unique<testing::ProgramFolder>();
  }
  void cleanup() {
    program_.reset();
    place_.reset();
  }

  void whatIsNotShownCannotBeTaken();
  void aNewVerbCanBeTakenOnceItHasAName();
  void theVerbIsTheNameThatIsProposed();
  void theNameFollowsTheKind();
  void everyKindIsWritten_data();
  void everyKindIsWritten();
  void aForgottenSuffixIsAdded();
  void aTypedSuffixSaysWhatIsWanted();
  void theDialogAsksBeforeItReplaces();
  void aCompletedNameIsAskedAboutToo();
  void folderAndKindAreRemembered();
  void givingUpChangesNothing();
  void onePdfPageHoldsTheVerbAsText();
  void thePdfIsNamedAfterItsVerbAndCarriesItsLetters();
  void longPhrasesStayInTheirColumns();
  void theNormIsSavedWhereItIsShown();
  void whatIsTypedIsSavedWhileAVerbIsEdited();
  void theNextVerbInTheEntryBoxIsNotSavedYet();
  void aDiskThatFailsIsToldAndLosesNothing_data();
  void aDiskThatFailsIsToldAndLosesNothing();
  void aFolderThatTakesNoFilesIsTold();
  void savedTwiceItIsReplacedWhole();
  void askedTwiceItOpensOneDialog();

 private:
  [[nodiscard]] QString path(const char* name) const {
    return QDir(QString::fromStdString(place_->path().string())).filePath(QString::fromUtf8(name));
  }
  [[nodiscard]] QStringList names() const {
    return QDir(QString::fromStdString(place_->path().string())).entryList(QDir::Files);
  }
  // Chooses the item and lets a hand answer until the command is over.
  void save(FileHand& hand) const {
    program_->trigger(kSaveItem);
    QTRY_VERIFY(hand.dialogs > 0);
    QCoreApplication::processEvents();
  }
  [[nodiscard]] QString textOf(const char* name) const {
    return told("pdftotext", {"-layout", path(name), "-"});
  }

  std::unique_ptr<EditedProgram> program_;
  std::unique_ptr<testing::ProgramFolder> place_;
};

void ExportingSuite::whatIsNotShownCannotBeTaken() {
  for (const char* name : {kSaveItem, kCopyItem}) QVERIFY(!program_->item(name).isEnabled());
  program_->conjugate("parler");
  for (const char* name : {kSaveItem, kCopyItem}) QVERIFY(program_->item(name).isEnabled());
  program_->conjugate("zzz");
  for (const char* name : {kSaveItem, kCopyItem}) QVERIFY(!program_->item(name).isEnabled());
}

void ExportingSuite::aNewVerbCanBeTakenOnceItHasAName() {
  FileHand hand(path("nowy.csv"));
  program_->trigger("mnuEdycjaNowyCzasownik");
  program_->entry().setText("");
  program_->trigger(kSaveItem);
  QTRY_COMPARE(program_->messages.shown, Messages{MessageId::infinitiveNeeded});
  program_->entry().setText("googler");
  save(hand);
  QCOMPARE(names(), QStringList{"nowy.csv"});
}

void ExportingSuite::theVerbIsTheNameThatIsProposed() {
  program_->conjugate("se laver");
  FileHand hand("");
  save(hand);
  QCOMPARE(hand.proposed, QStringList{"se laver.pdf"});
}

void ExportingSuite::theNameFollowsTheKind() {
  program_->conjugate("finir");
  FileHand hand("", SavedKind::anki);
  save(hand);
  QCOMPARE(hand.proposed, QStringList{"finir.txt"});
}

void ExportingSuite::everyKindIsWritten_data() {
  QTest::addColumn<SavedKind>("kind");
  QTest::addColumn<QByteArray>("start");
  QTest::newRow("pdf") << SavedKind::pdf << QByteArray("%PDF-");
  QTest::newRow("html") << SavedKind::html << QByteArray("<!DOCTYPE html>");
  QTest::newRow("csv") << SavedKind::csv << QByteArray("\xEF\xBB\xBFinfinitive,slot,");
  QTest::newRow("txt") << SavedKind::anki << QByteArray("#separator:tab\n");
}

// deliberate: the CSV begins with a byte-order mark, or spreadsheets would spoil its accents.
void ExportingSuite::everyKindIsWritten() {
  QFETCH(SavedKind, kind);
  QFETCH(QByteArray, start);
  program_->conjugate("parler");
  FileHand hand(path("parler"), kind);
  save(hand);
  const QString name = QString("parler.") + QTest::currentDataTag();
  QCOMPARE(names(), QStringList{name});
  QVERIFY(contentOf(path(qPrintable(name))).startsWith(start));
  QVERIFY(program_->messages.shown.empty());
}

void ExportingSuite::aForgottenSuffixIsAdded() {
  program_->conjugate("parler");
  FileHand hand(path("lekcja 3.1"), SavedKind::csv);
  save(hand);
  QCOMPARE(names(), QStringList{"lekcja 3.1.csv"});
}

void ExportingSuite::aTypedSuffixSaysWhatIsWanted() {
  program_->conjugate("parler");
  FileHand hand(path("parler.HTM"), SavedKind::pdf);
  save(hand);
  QVERIFY(contentOf(path("parler.HTM")).startsWith("<!DOCTYPE html>"));
}

void ExportingSuite::theDialogAsksBeforeItReplaces() {
  place_->write("parler.csv", "old");
  program_->conjugate("parler");
  FileHand hand(path("parler"), SavedKind::csv);
  hand.answer = QMessageBox::No;
  save(hand);
  QTRY_COMPARE(hand.questions, 1);
  QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
  QCOMPARE(contentOf(path("parler.csv")), QByteArray("old"));
}

// Behind the dialog's back: it takes "3.1" for a suffix.
void ExportingSuite::aCompletedNameIsAskedAboutToo() {
  place_->write("lekcja 3.1.csv", "old");
  program_->conjugate("parler");
  program_->messages.answer = Button::no;
  FileHand hand(path("lekcja 3.1"), SavedKind::csv);
  program_->messages.whileShown = [&] { hand.name.clear(); };
  save(hand);
  QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
  QCOMPARE(program_->messages.shown.front(), MessageId::replaceFile);
  QCOMPARE(contentOf(path("lekcja 3.1.csv")), QByteArray("old"));
}

void ExportingSuite::folderAndKindAreRemembered() {
  program_->conjugate("parler");
  auto first = std::make_unique<FileHand>(path("parler"), SavedKind::html);
  save(*first);
  first.reset();
  program_->conjugate("finir");
  QString folder;
  FileHand second("", SavedKind::html);
  second.meanwhile = [&](QFileDialog& dialog) { folder = dialog.directory().absolutePath(); };
  save(second);
  QCOMPARE(second.proposed, QStringList{"finir.html"});
  QCOMPARE(QDir(folder), QDir(path("")));
}

void ExportingSuite::givingUpChangesNothing() {
  program_->conjugate("parler");
  FileHand hand("");
  save(hand);
  QVERIFY(program_->messages.shown.empty());
  QCOMPARE(program_->form(3), "parlons");
  QVERIFY(program_->item(kSaveItem).isEnabled());
}

void ExportingSuite::onePdfPageHoldsTheVerbAsText() {
  program_->conjugate("haïr");
  FileHand hand(path("haïr"));
  save(hand);
  const QString text = textOf("haïr.pdf");
  for (const char* part :
       {"haïr", "grupa: ", "czasownik posiłkowy: avoir", "Indicatif", "plus-que-parfait", "je hais",
        "que nous haïssions", "qu'ils haïssent", "ayant haï"})
    QVERIFY2(text.contains(part), part);
  QCOMPARE(text.count('\f'), 1);
}

void ExportingSuite::thePdfIsNamedAfterItsVerbAndCarriesItsLetters() {
  program_->conjugate("être");
  FileHand hand(path("être"));
  save(hand);
  const QString facts = told("pdfinfo", {path("être.pdf")});
  QVERIFY2(facts.contains(QRegularExpression("Title: +être")), qPrintable(facts));
  QVERIFY2(facts.contains("(A4)"), qPrintable(facts));
  const QStringList fonts = told("pdffonts", {path("être.pdf")}).split('\n', Qt::SkipEmptyParts);
  QVERIFY(fonts.size() > 2);
  for (const QString& font : fonts.mid(2)) {
    QVERIFY2(font.contains("LiberationSans"), qPrintable(font));
    QVERIFY2(font.contains(QRegularExpression("yes +(yes|no) +yes")), qPrintable(font));
  }
}

// No word of a column begins before the one beside it has ended, in the verb with the widest forms.
void ExportingSuite::longPhrasesStayInTheirColumns() {
  program_->conjugate("s'entredétruire");
  FileHand hand(path("x"));
  save(hand);
  const QString boxes = told("pdftotext", {"-bbox-layout", path("x.pdf"), "-"});
  const QRegularExpression line(R"x(<line xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)")x");
  std::map<QString, QList<std::pair<double, double>>> rows;
  for (const auto& match : line.globalMatch(boxes))
    rows[match.captured(2)].append({match.captured(1).toDouble(), match.captured(3).toDouble()});
  QVERIFY(rows.size() > 40);
  for (auto& [top, parts] : rows) {
    std::sort(parts.begin(), parts.end());
    for (int i = 1; i < parts.size(); ++i)
      QVERIFY2(parts[i - 1].second < parts[i].first, qPrintable(top));
  }
}

void ExportingSuite::theNormIsSavedWhereItIsShown() {
  program_->conjugate("lire");
  program_->trigger("mnuWidokNorma");
  FileHand hand(path("lire.csv"));
  save(hand);
  QVERIFY(contentOf(path("lire.csv")).contains(",il lit\r\n"));
}

void ExportingSuite::whatIsTypedIsSavedWhileAVerbIsEdited() {
  program_->edit("parler");
  program_->box(3).setText("parlix");
  FileHand hand(path("parler.csv"));
  save(hand);
  QVERIFY(contentOf(path("parler.csv")).contains(",parlix,nous parlix\r\n"));
  QVERIFY(program_->isEditing());
  QCOMPARE(program_->form(3), "parlix");
}

void ExportingSuite::theNextVerbInTheEntryBoxIsNotSavedYet() {
  program_->conjugate("parler");
  program_->entry().setText("finir");
  FileHand hand(path("x.csv"));
  save(hand);
  QCOMPARE(hand.proposed, QStringList{"parler.pdf"});
  const QByteArray content = contentOf(path("x.csv"));
  QVERIFY(content.contains("\r\nparler,") && !content.contains("\r\nfinir,"));
}

void ExportingSuite::aDiskThatFailsIsToldAndLosesNothing_data() {
  QTest::addColumn<int>("steps");
  QTest::newRow("the file cannot be made") << 0;
  QTest::newRow("the disk is full") << 1;
  QTest::newRow("it cannot be brought to the disk") << 2;
  QTest::newRow("it cannot be put into its place") << 3;
}

void ExportingSuite::aDiskThatFailsIsToldAndLosesNothing() {
  QFETCH(int, steps);
  place_->write("parler.html", "old");
  ProgramHome home;
  testing::FaultyFiles files(1000, testing::Afterwards::allSucceeds);
  ProgramRun run(home, files);
  run.program.start();
  run.conjugate("parler");
  FileHand hand(path("parler.html"));
  run.messages.shown.clear();
  files = testing::FaultyFiles(steps, testing::Afterwards::allSucceeds);
  app::menuItem(*run.program.window().menuBar(), "mnuPlikZapiszOdmianę").trigger();
  QTRY_COMPARE(run.messages.shown, Messages{MessageId::fileNotSaved});
  QVERIFY(files.hasFailed());
  QCOMPARE(contentOf(path("parler.html")), QByteArray("old"));
  QCOMPARE(names(), QStringList{"parler.html"});
  QCOMPARE(run.widget<QLineEdit>("txtCzasownik_3").text(), "parlons");
}

// The system's own folder of processes takes none from anybody.
void ExportingSuite::aFolderThatTakesNoFilesIsTold() {
#ifdef Q_OS_LINUX
  program_->conjugate("parler");
  FileHand hand("/proc/parler.pdf");
  save(hand);
  QTRY_COMPARE(program_->messages.shown, Messages{MessageId::fileNotSaved});
#else
  QSKIP("only Linux has such a folder");
#endif
}

void ExportingSuite::savedTwiceItIsReplacedWhole() {
  for (const char* verb : {"s'entredétruire", "aller"}) {
    program_->conjugate(verb);
    FileHand hand(path("x.html"));
    save(hand);
    QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
  }
  const QByteArray content = contentOf(path("x.html"));
  QVERIFY(content.contains("<h1 lang=\"fr\">aller</h1>") && content.endsWith("</html>\n"));
  QCOMPARE(names(), QStringList{"x.html"});
}

// Shortcuts can be pressed faster than a dialog opens.
void ExportingSuite::askedTwiceItOpensOneDialog() {
  program_->conjugate("parler");
  FileHand hand("");
  program_->item(kSaveItem).trigger();
  program_->item(kSaveItem).trigger();
  QTRY_VERIFY(hand.dialogs > 0);
  program_->conjugate("finir");
  QCOMPARE(hand.dialogs, 1);
}

std::unique_ptr<QObject> exportingSuite() { return std::make_unique<ExportingSuite>(); }

}  // namespace odmiennik::window_test

#include "exporting_test.moc"
