// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file as the running program reads and writes it.
#include <limits>

#include "tests/window/coloured_settings.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

using dictionary::Button;
using dictionary::MessageId;
using Messages = std::vector<MessageId>;

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
  home_->write("Werbolin.cfg", kColouredSettings);
  ProgramRun run(*home_);
  QVERIFY(headingColour(run, "lblTryb_0") != QColor(Qt::red));
  run.program.start();
  QCOMPARE(headingColour(run, "lblTryb_0"), QColor(Qt::red));
  QCOMPARE(headingColour(run, "lblTryb_5"), QColor(Qt::red));
  QCOMPARE(headingColour(run, "lblCzas_0"), QColor(Qt::green));
  QCOMPARE(headingColour(run, "lblCzas_20"), QColor(Qt::green));
}

void SettingsSuite::theColoursOfTheHeadingsAreSaved() {
  home_->write("Werbolin.cfg", kColouredSettings);
  ProgramRun run(*home_);
  run.program.start();
  run.program.window().colours().ApplyColours(16711680, 255);
  run.program.window().close();
  QCOMPARE(home_->setting(2), "16711680");
  QCOMPARE(home_->setting(3), "255");
}

void SettingsSuite::anUnchangedFileOnlyCountsTheRun() {
  home_->write("Werbolin.cfg", kColouredSettings);
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
               "0\r\n0\r\n0\r\n" + full + "\r\n" + disk::encodeRunCount(2147483647) + "\r\n");
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

void SettingsSuite::resetujAnsweredCancelChangesNothing() {
  home_->write("Werbolin.cfg", kColouredSettings);
  ProgramRun run(*home_);
  run.program.start();
  run.messages.answer = Button::cancel;
  run.conjugate("resetuj");
  QCOMPARE(run.messages.shown, Messages{MessageId::settingsWillBeReset});
  QCOMPARE(home_->settings(), kColouredSettings);
  QCOMPARE(run.ends, 0);
}

void SettingsSuite::resetujAnsweredOkLeavesTheDefaultsAndEndsTheProgram() {
  home_->write("Werbolin.cfg", kColouredSettings);
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
