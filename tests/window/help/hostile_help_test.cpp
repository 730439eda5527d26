// SPDX-License-Identifier: GPL-3.0-or-later
// Help files that were made to do harm: nothing crashes, hangs, or is read from outside the file.
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <fstream>

#include "app/help/help_browser.h"
#include "app/help/help_file_check.h"
#include "app/help/page_picture.h"
#include "tests/support/scratch_folder.h"
#include "tests/window/suites.h"

namespace odmiennik::window_test {
namespace {

std::string word(std::uint64_t value, int size = 4) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
  return bytes;
}

constexpr std::size_t kPage = 256;

// A page of the directory with its entries in front and its free space behind.
std::string page(const std::string& signature, std::size_t header, const std::string& entries) {
  std::string bytes = signature + word(kPage - header - entries.size());
  bytes.resize(header);
  bytes += entries;
  bytes.resize(kPage);
  return bytes;
}
std::string listing(const std::string& entries) { return page("PMGL", 20, entries); }
std::string index(const std::string& entries) { return page("PMGI", 8, entries); }

// A file that is all directory.
std::string fileOf(const std::string& pages, std::uint64_t root) {
  std::string directory = "ITSP" + word(1) + word(0x54) + word(10) + word(kPage) + word(2) +
                          word(1) + word(root) + word(0);
  directory.resize(0x54);
  directory += pages;
  std::string file = "ITSF" + word(3) + word(0x60);
  file.resize(0x48);
  file += word(0x60, 8) + word(directory.size(), 8) + word(0x60 + directory.size(), 8);
  return file + directory;
}

const std::string kEntry("\2/a\0\0\1", 6);

bool hasRedPixel(QWidget& widget) {
  const QImage picture = widget.grab().toImage();
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixelColor(x, y) == QColor(Qt::red)) return true;
  return false;
}

}  // namespace

class HostileHelpSuite : public QObject {
  Q_OBJECT

 private slots:
  void aSoundDirectoryIsTaken();
  void aDirectoryThatLeadsInACircleIsRefused();
  void anEntryThatLeavesItsPageIsRefused();
  void aDirectoryOutsideTheFileIsRefused();
  void aRecordOfUnpackingOutsideTheFileIsRefused();
  void buffersThatDoNotFitAreRefused();
  void filesWithWrongBytesAreReadOrRefused();
  void aPageReadsNothingFromOutside();
  void aPictureOfTheFileIsShown();
  void aPictureThatIsNoneOrTooLargeIsATransparentPoint();
  void aLinkOutOfTheFileIsNotFollowed();

 private:
  // A help file of one page, made with the compiler that makes the program's own.
  // The page and, where there is one, red.png of the folder; nothing without a compiler.
  [[nodiscard]] QString compile(const QByteArray& page) const;

  scratch::ScratchFolder folder_;
};

QString HostileHelpSuite::compile(const QByteArray& page) const {
  const QString compiler = QStandardPaths::findExecutable("chmcmd");
  if (compiler.isEmpty()) return {};
  std::ofstream(folder_.path() / "a.htm") << page.toStdString();
  const bool hasPicture = std::filesystem::exists(folder_.path() / "red.png");
  std::ofstream(folder_.path() / "a.hhp")
      << "[OPTIONS]\nCompiled file=a.chm\nDefault topic=a.htm\n[FILES]\na.htm\n"
      << (hasPicture ? "red.png\n" : "");
  QProcess compiling;
  compiling.setWorkingDirectory(QString::fromStdString(folder_.path().string()));
  compiling.start(compiler, {"--no-html-scan", "a.hhp"});
  compiling.waitForFinished();
  return QString::fromStdString((folder_.path() / "a.chm").string());
}

void HostileHelpSuite::aSoundDirectoryIsTaken() {
  QVERIFY(app::hasSoundDirectory(fileOf(listing(kEntry), 0xFFFFFFFF)));
  QVERIFY(app::hasSoundDirectory(fileOf(listing(kEntry) + index("\2/a" + std::string(1, 0)), 1)));
}

void HostileHelpSuite::aDirectoryThatLeadsInACircleIsRefused() {
  QVERIFY(!app::hasSoundDirectory(fileOf(listing(kEntry) + index("\2/a\1"), 1)));
  QVERIFY(!app::hasSoundDirectory(fileOf(listing(kEntry) + index("\2/a\2") + index("\2/a\1"), 1)));
  QVERIFY(!app::hasSoundDirectory(fileOf(listing(kEntry) + index("\2/a\7"), 1)));
}

void HostileHelpSuite::anEntryThatLeavesItsPageIsRefused() {
  QVERIFY(!app::hasSoundDirectory(fileOf(listing("\x7F/a"), 0xFFFFFFFF)));
  QVERIFY(!app::hasSoundDirectory(fileOf(listing("\2/a\x80\x80\x80"), 0xFFFFFFFF)));
  std::string noFreeSpace = listing(kEntry);
  noFreeSpace.replace(4, 4, word(kPage));
  QVERIFY(!app::hasSoundDirectory(fileOf(noFreeSpace, 0xFFFFFFFF)));
}

void HostileHelpSuite::aDirectoryOutsideTheFileIsRefused() {
  const std::string sound = fileOf(listing(kEntry), 0xFFFFFFFF);
  QVERIFY(!app::hasSoundDirectory({}));
  for (std::size_t size = 0; size < sound.size(); size += 7)
    QVERIFY(!app::hasSoundDirectory(sound.substr(0, size)));
  std::string far = sound;
  far.replace(0x48, 8, word(~0ULL, 8));
  QVERIFY(!app::hasSoundDirectory(far));
}

// libchm divided by what it had not read.
void HostileHelpSuite::aRecordOfUnpackingOutsideTheFileIsRefused() {
  const std::string place("\0\0\x1C", 3);
  for (const std::string name : {"::DataSpace/Storage/MSCompressed/ControlData",
                                 "::DATASPACE/storage/mscompressed/controldata"})
    QVERIFY(!app::hasSoundDirectory(
        fileOf(listing(static_cast<char>(name.size()) + name + place), 0xFFFFFFFF)));
}

void HostileHelpSuite::buffersThatDoNotFitAreRefused() {
  const auto control = [](std::uint64_t interval, std::uint64_t window, std::uint64_t windows) {
    return word(6) + "LZXC" + word(2) + word(interval) + word(window) + word(windows);
  };
  const std::string table = std::string(0x20, '\0') + word(0x8000, 8);
  QVERIFY(app::canBeUnpacked(control(2, 2, 1), table));
  QVERIFY(!app::canBeUnpacked(control(2, 2, 0), table));
  QVERIFY(!app::canBeUnpacked(control(0, 2, 1), table));
  QVERIFY(!app::canBeUnpacked(control(2, 0, 1), table));
  QVERIFY(!app::canBeUnpacked(control(2, 3, 1), table));
  QVERIFY(!app::canBeUnpacked(control(2, 1U << 20, 1), table));
  QVERIFY(!app::canBeUnpacked(control(2, 2, 1), std::string(0x20, '\0') + word(0x80000, 8)));
  QVERIFY(!app::canBeUnpacked({}, {}));
}

// The same wrong bytes in every run, more of them in the front, where the directory is.
void HostileHelpSuite::filesWithWrongBytesAreReadOrRefused() {
  QFile whole(app::helpFilePlaces().front());
  if (!whole.open(QIODevice::ReadOnly)) QSKIP("the help file is not built here");
  const QByteArray sound = whole.readAll();
  QFile file(QString::fromStdString((folder_.path() / "wrong.chm").string()));
  std::uint64_t state = 1;
  const auto random = [&state](qsizetype below) {
    state = state * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<qsizetype>((state >> 33) % static_cast<std::uint64_t>(below));
  };
  int opened = 0, refused = 0;
  for (int run = 0; run < 500; ++run) {
    QByteArray bytes = sound;
    const qsizetype below = run % 3 == 0 ? 0x800 : bytes.size();
    for (qsizetype changes = random(8) + 1; changes > 0; --changes)
      bytes[random(below)] = static_cast<char>(random(256));
    if (run % 10 == 0) bytes.truncate(random(bytes.size()));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    app::HelpBook book({file.fileName()});
    ++(book.open() ? opened : refused);
    for (const char* name : {"strony/default.htm", "strony/PasseCompose.htm", "styl.css"})
      QVERIFY(!book.page(app::helpAddress(QLatin1String(name))).isEmpty());
    QVERIFY(book.contents().size() <= 1000);
  }
  QVERIFY(opened > 50 && refused > 50);
}

void HostileHelpSuite::aPageReadsNothingFromOutside() {
  const QString picture = QString::fromStdString((folder_.path() / "red.png").string());
  QImage red(60, 60, QImage::Format_RGB32);
  red.fill(Qt::red);
  QVERIFY(red.save(picture));
  const QString sheet = QString::fromStdString((folder_.path() / "red.css").string());
  std::ofstream(sheet.toStdString()) << "h1 { background-color: #ff0000 }";
  const QString page = QString(
                           "<html><head><link rel='stylesheet' href='file://%2'>"
                           "<style>@import url('%2');</style></head><body>"
                           "<h1>Strona</h1><img src='%1'><img src='file://%1'>"
                           "<p style=\"background-image: url('file://%1')\">koniec</p>"
                           "</body></html>")
                           .arg(picture, sheet);
  QTextBrowser careless;
  careless.setHtml(page);
  QVERIFY(hasRedPixel(careless));

  const QString compiled = compile(page.toUtf8());
  if (compiled.isEmpty()) QSKIP("chmcmd (package fp-utils) is missing");
  app::HelpBook book({compiled});
  QVERIFY(book.open());
  app::HelpBrowser browser(book, nullptr);
  browser.setSource(app::helpAddress("a.htm"));
  QVERIFY(browser.toPlainText().startsWith("Strona"));
  QVERIFY(!hasRedPixel(browser));
}

void HostileHelpSuite::aPictureOfTheFileIsShown() {
  QImage red(60, 60, QImage::Format_RGB32);
  red.fill(Qt::red);
  QVERIFY(red.save(QString::fromStdString((folder_.path() / "red.png").string())));
  const QString compiled = compile("<html><body><h1>Strona</h1><img src='red.png'></body></html>");
  if (compiled.isEmpty()) QSKIP("chmcmd (package fp-utils) is missing");
  app::HelpBook book({compiled});
  QVERIFY(book.open());
  app::HelpBrowser browser(book, nullptr);
  browser.setSource(app::helpAddress("a.htm"));
  QVERIFY(hasRedPixel(browser));
}

// A PNG of that size whose points all have one colour: few bytes, much memory.
QByteArray plainPng(QSize size) {
  QImage picture(size, QImage::Format_Mono);
  picture.fill(0);
  QByteArray png;
  QBuffer bytes(&png);
  picture.save(&bytes, "png");
  return png;
}

void HostileHelpSuite::aPictureThatIsNoneOrTooLargeIsATransparentPoint() {
  const auto isPoint = [](const QByteArray& bytes) {
    const QImage picture = app::pagePicture(bytes, 200);
    return picture.size() == QSize(1, 1) && picture.pixelColor(0, 0).alpha() == 0;
  };
  const QByteArray sound = plainPng({40, 30});
  QCOMPARE(app::pagePicture(sound, 200).size(), QSize(80, 60));
  QVERIFY(isPoint({}));
  QVERIFY(isPoint("<svg xmlns='http://www.w3.org/2000/svg' width='40' height='30'/>"));
  QVERIFY(isPoint(plainPng({20'000, 20'000})));
  for (qsizetype size = 0; size < 33; ++size) QVERIFY(isPoint(sound.left(size)));
  QByteArray lying = sound;
  lying.replace(16, 8, QByteArray::fromHex("7fffffff7fffffff"));
  QVERIFY(isPoint(lying));
}

void HostileHelpSuite::aLinkOutOfTheFileIsNotFollowed() {
  std::ofstream(folder_.path() / "secret.txt") << "tajne";
  const app::HelpBook book{{}};
  app::HelpBrowser browser(book, nullptr);
  for (const QString& address :
       {"file://" + QString::fromStdString((folder_.path() / "secret.txt").string()),
        QString("http://127.0.0.1/"), QString("data:text/html,tajne"), QString("qrc:/a.htm")}) {
    browser.setSource(QUrl(address));
    QVERIFY(browser.toPlainText().startsWith("Nie można otworzyć tego adresu"));
    QVERIFY(browser.toPlainText().section('\n', 1).contains("odsyłacz prowadzi poza nie"));
  }
}

std::unique_ptr<QObject> hostileHelpSuite() { return std::make_unique<HostileHelpSuite>(); }

}  // namespace odmiennik::window_test

#include "hostile_help_test.moc"
