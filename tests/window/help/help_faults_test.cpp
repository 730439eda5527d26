// SPDX-License-Identifier: GPL-3.0-or-later
// The help viewer without its file or a page of it, and on a file that is damaged or comes later.
#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <filesystem>

#include "tests/window/help_under_test.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {

class HelpFaultsSuite : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { skipWithoutHelpFile(); }
  void init() { help_ = std::make_unique<HelpUnderTest>(); }
  void cleanup() { help_.reset(); }

  void aMissingFileIsToldInPolish();
  void aDamagedFileIsToldInPolish();
  void whatIsNoOrdinaryFileIsToldInPolish();
  void aFileOfFourGigabytesIsToldInPolish();
  void aMissingPageIsToldInPolish();
  void aFileThatComesLaterIsOpened();

 private:
  std::unique_ptr<HelpUnderTest> help_;
};

void HelpFaultsSuite::aMissingFileIsToldInPolish() {
  help_->viewer().lookIn({"/nie/ma/Werbolin.chm"});
  help_->viewer().open("strony\\default.htm");
  QVERIFY(help_->pages().toPlainText().startsWith("Nie znaleziono pliku pomocy"));
  QVERIFY(help_->pages().toPlainText().contains("Werbolin.chm"));
  QCOMPARE(help_->contents().topLevelItemCount(), 0);
}

void HelpFaultsSuite::aDamagedFileIsToldInPolish() {
  QFile whole(app::helpFilePlaces().front());
  QVERIFY(whole.open(QIODevice::ReadOnly));
  QFile damaged(QString::fromStdString((help_->folder.path() / "Werbolin.chm").string()));
  for (const QByteArray& bytes : {QByteArray(), QByteArray("Werbolin"), whole.read(300),
                                  whole.read(5000).replace("PMG", "XXX")}) {
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write(bytes) == bytes.size());
    damaged.close();
    help_->viewer().lookIn({damaged.fileName()});
    help_->viewer().open("strony\\default.htm");
    QVERIFY(help_->pages().toPlainText().startsWith("Plik pomocy jest uszkodzony"));
  }
}

// Reading any of these would wait for ever or never end.
void HelpFaultsSuite::whatIsNoOrdinaryFileIsToldInPolish() {
#ifdef _WIN32
  QSKIP("this system has no pipes and devices among its files");
#else
  const std::string pipe = (help_->folder.path() / "pipe.chm").string();
  QCOMPARE(mkfifo(pipe.c_str(), 0600), 0);
  for (const char* file : {pipe.c_str(), "/dev/zero", "/dev/full"}) {
    const std::string place = (help_->folder.path() / "Werbolin.chm").string();
    std::filesystem::remove(place);
    std::filesystem::create_symlink(file, place);
    help_->viewer().lookIn({QString::fromStdString(place)});
    help_->viewer().open("strony\\default.htm");
    QVERIFY(help_->pages().toPlainText().startsWith("Plik pomocy jest uszkodzony"));
  }
#endif
}

void HelpFaultsSuite::aFileOfFourGigabytesIsToldInPolish() {
  const QString place = QString::fromStdString((help_->folder.path() / "Werbolin.chm").string());
  QVERIFY(QFile::copy(app::helpFilePlaces().front(), place));
  QVERIFY(QFile::resize(place, 4LL << 30));
  help_->viewer().lookIn({place});
  help_->viewer().open("strony\\default.htm");
  QVERIFY(help_->pages().toPlainText().startsWith("Plik pomocy jest uszkodzony"));
}

void HelpFaultsSuite::aMissingPageIsToldInPolish() {
  help_->viewer().open("strony\\Nie<b>ma.htm");
  QVERIFY(help_->pages().toPlainText().startsWith("Nie znaleziono strony"));
  QVERIFY(help_->pages().toPlainText().contains("„Nie<b>ma.htm”"));
  help_->viewer().open("strony\\default.htm");
  QVERIFY(help_->pages().toPlainText().startsWith("Witaj w Odmienniku"));
}

void HelpFaultsSuite::aFileThatComesLaterIsOpened() {
  const QString place = QString::fromStdString((help_->folder.path() / "W.chm").string());
  help_->viewer().lookIn({place});
  help_->viewer().open("strony\\default.htm");
  QVERIFY(help_->pages().toPlainText().startsWith("Nie znaleziono pliku pomocy"));
  QVERIFY(QFile::copy(app::helpFilePlaces().front(), place));
  help_->viewer().open("strony\\default.htm");
  QVERIFY(help_->pages().toPlainText().startsWith("Witaj w Odmienniku"));
  QVERIFY(help_->contents().topLevelItemCount() > 5);
}

std::unique_ptr<QObject> helpFaultsSuite() { return std::make_unique<HelpFaultsSuite>(); }

}  // namespace odmiennik::window_test

#include "help_faults_test.moc"
