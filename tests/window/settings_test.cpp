// The settings file as the running program reads and writes it.
#include <limits>

#include "app/common/text.h"
#include "tests/unit/dictionary/faulty_files.h"
#include "tests/window/program_run.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;
using Messages = std::vector<MessageId>;
using testing::FaultyFiles;

constexpr char kColoured[] = "0\r\n255\r\n65280\r\n41\r\n1112\r\n";

QColor colourOf(ProgramRun& run, const char* label) {
  return run.widget<QLabel>(label).palette().color(QPalette::WindowText);
}

}  // namespace

class SettingsSuite : public QObject {
  Q_OBJECT

 private slots:
  void init() { home_ = std::make_unique<ProgramHome>(); }
  void cleanup() { home_.reset(); }

  void aFirstStartCreatesTheFileWithItsDefaults();
  void aFirstRunEndsWithARunCountOfOne();
  void theStoredColoursAreApplied();
  void theColoursOfTheHeadingsAreSaved();
  void anUnchangedFileOnlyCountsTheRun();
  void aRunCountOf255IsStoredAs121515();
  void everyConjugateCommandCounts();
  void theWordThatResetsDoesNotCount();
  void fullCountersStayFull();
  void theUsersVerbsAreCountedOverRuns();
  void damageIsToldOnceAndTheProgramWorksOn_data();
  void damageIsToldOnceAndTheProgramWorksOn();
  void whatStandsBeforeTheDamageIsTaken();
  void aDamagedFileChangesNoColour();
  void aFileThatCannotBeOpenedIsToldOnce();
  void aFolderThatCannotBeWrittenToIsToldInEachOfItsPlaces();
  void aFailedSaveKeepsTheOldFileAndClosesTheProgram();
  void resetujAnsweredCancelChangesNothing();
  void resetujAnsweredOkLeavesTheDefaultsAndEndsTheProgram();
  void aResetLeavesTheUsersStoreAlone();
  void theStoreHoldsOneWhereNothingWasWritten();
  void theStoreTakesAnyOtherValueForNo();
  void theStoreWritesAtOnce();

 private:
  std::unique_ptr<ProgramHome> home_;
};

void SettingsSuite::aFirstStartCreatesTheFileWithItsDefaults() {
  ProgramRun run(*home_);
  run.program.start();
  // #8C1D40 and #1D4F91 as red + 256 x green + 65536 x blue.
  QCOMPARE(home_->settings(), "0\r\n4201868\r\n9522973\r\n0\r\n10\r\n");
  QVERIFY(run.messages.shown.empty());
}

void SettingsSuite::aFirstRunEndsWithARunCountOfOne() {
  ProgramRun run(*home_);
  run.program.start();
  run.program.window().close();
  QCOMPARE(home_->settings(), "0\r\n4201868\r\n9522973\r\n0\r\n11\r\n");
}

void SettingsSuite::theStoredColoursAreApplied() {
  home_->write("Werbolin.cfg", kColoured);
  ProgramRun run(*home_);
  QVERIFY(colourOf(run, "lblTryb_0") != QColor(Qt::red));
  run.program.start();
  QCOMPARE(colourOf(run, "lblTryb_0"), QColor(Qt::red));
  QCOMPARE(colourOf(run, "lblTryb_5"), QColor(Qt::red));
  QCOMPARE(colourOf(run, "lblCzas_0"), QColor(Qt::green));
  QCOMPARE(colourOf(run, "lblCzas_20"), QColor(Qt::green));
}

void SettingsSuite::theColoursOfTheHeadingsAreSaved() {
  home_->write("Werbolin.cfg", kColoured);
  ProgramRun run(*home_);
  run.program.start();
  run.program.window().colours().ApplyColours(16711680, 255);
  run.program.window().close();
  QCOMPARE(home_->setting(2), "16711680");
  QCOMPARE(home_->setting(3), "255");
}

void SettingsSuite::anUnchangedFileOnlyCountsTheRun() {
  home_->write("Werbolin.cfg", kColoured);
  ProgramRun run(*home_);
  run.program.start();
  run.program.window().close();
  QCOMPARE(home_->settings(), "0\r\n255\r\n65280\r\n41\r\n1113\r\n");
}

void SettingsSuite::aRunCountOf255IsStoredAs121515() {
  home_->write("Werbolin.cfg", "0\r\n255\r\n65280\r\n41\r\n121514\r\n");
  ProgramRun run(*home_);
  run.program.start();
  QCOMPARE(run.program.settings().runCount(), 255);
  run.program.window().close();
  QCOMPARE(home_->setting(5), "121515");
}

void SettingsSuite::everyConjugateCommandCounts() {
  ProgramRun run(*home_);
  run.program.start();
  for (const char* verb : {"parler", "zzz", "", "parler"}) run.conjugate(verb);
  QCOMPARE(run.program.settings().conjugationCount(), 4);
  run.widget<QCheckBox>("chkZAvoir").click();
  run.program.window().close();
  QCOMPARE(home_->setting(4), "4");
}

void SettingsSuite::theWordThatResetsDoesNotCount() {
  ProgramRun run(*home_);
  run.program.start();
  run.messages.answer = Button::cancel;
  run.conjugate("resetuj");
  QCOMPARE(run.program.settings().conjugationCount(), 0);
}

void SettingsSuite::fullCountersStayFull() {
  const std::string full = std::to_string(std::numeric_limits<std::int32_t>::max());
  home_->write("Werbolin.cfg",
               "0\r\n0\r\n0\r\n" + full + "\r\n" + dictionary::encodeRunCount(2147483647) + "\r\n");
  ProgramRun run(*home_);
  run.program.start();
  run.conjugate("parler");
  run.program.window().close();
  QCOMPARE(home_->setting(4), "2147483647");
  QCOMPARE(home_->setting(5), "12111417141813161417");
}

void SettingsSuite::theUsersVerbsAreCountedOverRuns() {
  {
    ProgramRun run(*home_);
    run.program.start();
    run.program.userVerbs().save(testing::verb("bricoler", {{0, "bricolus"}}));
    run.program.window().close();
  }
  QCOMPARE(home_->setting(1), "1");
  ProgramRun run(*home_);
  run.program.start();
  run.conjugate("bricoler");
  QCOMPARE(run.widget<QLineEdit>("txtCzasownik_0").text(), "bricolus");
}

void SettingsSuite::damageIsToldOnceAndTheProgramWorksOn_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::newRow("empty") << QByteArray();
  QTest::newRow("too few lines") << QByteArray("0\r\n1\r\n2\r\n");
  QTest::newRow("no numbers") << QByteArray("a\r\nb\r\nc\r\nd\r\n10\r\n");
  QTest::newRow("decimals") << QByteArray("0\r\n1.5\r\n2\r\n3\r\n10\r\n");
  QTest::newRow("zz") << QByteArray("0\r\n1\r\n2\r\n3\r\nzz\r\n");
  QTest::newRow("half a pair") << QByteArray("0\r\n1\r\n2\r\n3\r\n101\r\n");
  QTest::newRow("2^31") << QByteArray("2147483648\r\n1\r\n2\r\n3\r\n10\r\n");
  QTest::newRow("encoded 2^31") << QByteArray("0\r\n1\r\n2\r\n3\r\n12111417141813161418\r\n");
  QTest::newRow("quotes") << QByteArray("\"0\"\"\r\n");
  QTest::newRow("binary rubbish") << QByteArray("\x00\xFF\x1A\x7F\x80,\x00\r\r\n\xC5", 12);
  QTest::newRow("very long") << QByteArray(100000, '7');
  QTest::newRow("many lines") << QByteArray("x\r\n").repeated(100000);
}

void SettingsSuite::damageIsToldOnceAndTheProgramWorksOn() {
  QFETCH(QByteArray, text);
  home_->write("Werbolin.cfg", text.toStdString());
  ProgramRun run(*home_);
  run.program.start();
  QCOMPARE(run.messages.shown, Messages{MessageId::settingsNotRead});
  run.conjugate("parler");
  QCOMPARE(run.widget<QLineEdit>("txtCzasownik_0").text(), "parle");
  run.program.window().close();
  QCOMPARE(run.messages.shown, (Messages{MessageId::settingsNotRead, MessageId::endProgram}));
  QCOMPARE(home_->setting(5), "11");
}

void SettingsSuite::whatStandsBeforeTheDamageIsTaken() {
  home_->write("Werbolin.cfg", "7\r\n255\r\n65280\r\n41\r\nzz\r\n");
  ProgramRun run(*home_);
  run.program.start();
  QCOMPARE(run.program.userVerbs().count(), 7);
  QCOMPARE(run.program.settings().conjugationCount(), 41);
  QCOMPARE(run.program.settings().runCount(), 1);
}

void SettingsSuite::aDamagedFileChangesNoColour() {
  home_->write("Werbolin.cfg", "0\r\n255\r\n65280\r\n41\r\nzz\r\n");
  ProgramRun run(*home_);
  const QColor mood = colourOf(run, "lblTryb_0"), tense = colourOf(run, "lblCzas_0");
  run.program.start();
  QCOMPARE(colourOf(run, "lblTryb_0"), mood);
  QCOMPARE(colourOf(run, "lblCzas_0"), tense);
}

// A folder in the file's place can be neither read nor replaced, whoever asks.
void SettingsSuite::aFileThatCannotBeOpenedIsToldOnce() {
  std::filesystem::create_directory(home_->path() / "Werbolin.cfg");
  ProgramRun run(*home_);
  run.program.start();
  QCOMPARE(run.messages.shown, Messages{MessageId::settingsNotRead});
  run.program.window().close();
  QCOMPARE(run.messages.shown, (Messages{MessageId::settingsNotRead, MessageId::endProgram,
                                         MessageId::settingsNotWritten}));
  QCOMPARE(run.ends, 1);
}

void SettingsSuite::aFolderThatCannotBeWrittenToIsToldInEachOfItsPlaces() {
  FaultyFiles readOnly(0);
  ProgramRun run(*home_, readOnly);
  run.program.start();
  const Messages atStart{MessageId::settingsNotWritten, MessageId::settingsNotRead};
  QCOMPARE(run.messages.shown, atStart);
  run.conjugate("parler");
  QCOMPARE(run.widget<QLineEdit>("txtCzasownik_0").text(), "parle");
  QVERIFY(run.program.window().close());
  QCOMPARE(run.messages.shown.size(), 4U);
  QCOMPARE(run.messages.shown.back(), MessageId::settingsNotWritten);
}

void SettingsSuite::aFailedSaveKeepsTheOldFileAndClosesTheProgram() {
  home_->write("Werbolin.cfg", kColoured);
  FaultyFiles readOnly(0);
  ProgramRun run(*home_, readOnly);
  run.program.start();
  QVERIFY(run.messages.shown.empty());
  QVERIFY(run.program.window().close());
  QCOMPARE(run.messages.shown, (Messages{MessageId::endProgram, MessageId::settingsNotWritten}));
  QCOMPARE(home_->settings(), kColoured);
  QCOMPARE(run.ends, 1);
}

void SettingsSuite::resetujAnsweredCancelChangesNothing() {
  home_->write("Werbolin.cfg", kColoured);
  ProgramRun run(*home_);
  run.program.start();
  run.messages.answer = Button::cancel;
  run.conjugate("resetuj");
  QCOMPARE(run.messages.shown, Messages{MessageId::settingsWillBeReset});
  QCOMPARE(home_->settings(), kColoured);
  QCOMPARE(run.ends, 0);
}

void SettingsSuite::resetujAnsweredOkLeavesTheDefaultsAndEndsTheProgram() {
  home_->write("Werbolin.cfg", kColoured);
  ProgramRun run(*home_);
  run.program.start();
  run.messages.answer = Button::ok;
  run.conjugate("resetuj");
  QCOMPARE(run.messages.shown, Messages{MessageId::settingsWillBeReset});
  QCOMPARE(home_->settings(), "0\r\n4201868\r\n9522973\r\n0\r\n10\r\n");
  QCOMPARE(run.ends, 1);
}

void SettingsSuite::aResetLeavesTheUsersStoreAlone() {
  home_->store.setCompletionOn(false);
  ProgramRun run(*home_);
  run.program.start();
  run.messages.answer = Button::ok;
  run.conjugate("resetuj");
  QVERIFY(!home_->store.isTipShownAtStart());
  QVERIFY(!home_->store.isCompletionOn());
}

void SettingsSuite::theStoreHoldsOneWhereNothingWasWritten() {
  const app::UserStore store(QString::fromStdString((home_->path() / "new.ini").string()));
  QVERIFY(store.isTipShownAtStart());
  QVERIFY(store.isCompletionOn());
}

void SettingsSuite::theStoreTakesAnyOtherValueForNo() {
  const QString file = QString::fromStdString((home_->path() / "other.ini").string());
  for (const char* value : {"0", "2", "-1", "tak"}) {
    QSettings(file, QSettings::IniFormat).setValue("Ustawienia/Pokazuj poradę dnia", value);
    QVERIFY2(!app::UserStore(file).isTipShownAtStart(), value);
  }
  QSettings(file, QSettings::IniFormat).setValue("Ustawienia/Pokazuj poradę dnia", 1);
  QVERIFY(app::UserStore(file).isTipShownAtStart());
}

void SettingsSuite::theStoreWritesAtOnce() {
  const QString file = QString::fromStdString((home_->path() / "store.ini").string());
  home_->store.setCompletionOn(false);
  QCOMPARE(QSettings(file, QSettings::IniFormat).value("Ustawienia/Autouzupełnianie"), "0");
  home_->store.setCompletionOn(true);
  QCOMPARE(QSettings(file, QSettings::IniFormat).value("Ustawienia/Autouzupełnianie"), "1");
}

std::unique_ptr<QObject> settingsSuite() { return std::make_unique<SettingsSuite>(); }

}  // namespace odmiennik::window_test

#include "settings_test.moc"
