// SPDX-License-Identifier: GPL-3.0-or-later
// A print server of a test's own.
#include "tests/window/print_server.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

namespace odmiennik::window_test {
namespace {

constexpr int kLimitMilliseconds = 20'000;

// The driver of a printer that takes PDF as it is.
constexpr char kDriver[] = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd";

// Daemons stand in folders that are not on everybody's path.
QString daemon() {
  const QString found = QStandardPaths::findExecutable("cupsd", {"/usr/sbin", "/sbin"});
  return found.isEmpty() ? QStandardPaths::findExecutable("cupsd") : found;
}

void write(const QString& name, const QString& text) {
  QFile file(name);
  if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
    qFatal("%s cannot be written", qPrintable(name));
}

constexpr char kRules[] = R"(LogLevel warn
WebInterface No
Browsing No
DefaultAuthType None
<Location />
  Allow all
</Location>
<Location /admin>
  Allow all
</Location>
<Policy default>
  <Limit All>
    Allow all
  </Limit>
</Policy>
)";

}  // namespace

QByteArray outputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished(kLimitMilliseconds) || process.exitCode() != 0) {
    qWarning("%s: %s", qPrintable(program), process.readAllStandardError().constData());
    return {};
  }
  return process.readAllStandardOutput();
}

QString PrintServer::obstacle() {
  if (geteuid() != 0) return "a print server of one's own needs root";
  if (daemon().isEmpty() || !QFile::exists(kDriver)) return "package cups is missing";
  for (const char* tool : {"lpadmin", "cupsreject", "cupsdisable", "lpoptions"})
    if (QStandardPaths::findExecutable(tool).isEmpty() &&
        QStandardPaths::findExecutable(tool, {"/usr/sbin"}).isEmpty())
      return "package cups-client is missing";
  if (QStandardPaths::findExecutable("pdfimages").isEmpty())
    return "package poppler-utils is missing";
  return {};
}

PrintServer::PrintServer() : scheduler_(std::make_unique<QProcess>()) {
  configure();
  qputenv("CUPS_SERVER", path("socket").toLocal8Bit());
  qputenv("HOME", path("home").toLocal8Bit());
  qputenv("PATH", qgetenv("PATH") + ":/usr/sbin");
  scheduler_->start(daemon(), {"-f", "-c", path("etc/cupsd.conf"), "-s", path("etc/files.conf")});
  // The tools wait for nobody: the server is there once they reach it.
  if (!QTest::qWaitFor([this] { return isRunning(); }, kLimitMilliseconds))
    qWarning("the print server does not start");
}

PrintServer::~PrintServer() {
  scheduler_->terminate();
  if (!scheduler_->waitForFinished(kLimitMilliseconds)) scheduler_->kill();
}

void PrintServer::configure() const {
  for (const char* name : {"etc/ppd", "spool/tmp", "cache", "state", "log", "printed", "home"})
    QDir().mkpath(path(name));
  write(path("etc/cupsd.conf"), QStringLiteral("Listen %1\n").arg(path("socket")) + kRules);
  write(path("etc/files.conf"),
        QStringLiteral("ServerRoot %1/etc\nRequestRoot %1/spool\nTempDir %1/spool/tmp\n"
                       "CacheDir %1/cache\nStateDir %1/state\nAccessLog %1/log/access\n"
                       "ErrorLog %1/log/error\nPageLog %1/log/page\nFileDevice Yes\n")
            .arg(path({})));
}

QString PrintServer::path(const QString& name) const {
  const QString folder = QString::fromStdString(folder_.path().string());
  return name.isEmpty() ? folder : folder + '/' + name;
}

bool PrintServer::isRunning() const {
  if (scheduler_->state() != QProcess::Running || !QFile::exists(path("socket"))) return false;
  return outputOf("lpstat", {"-r"}).contains("is running");
}

void PrintServer::addQueue(const QString& name) const {
  outputOf("lpadmin", {"-p", name, "-E", "-v", "file:" + document(name), "-P", kDriver});
}

void PrintServer::removeQueue(const QString& name) const {
  outputOf("lpadmin", {"-x", name});
  QFile::remove(document(name));
}

// The default of the server and of its user, as if nothing had been chosen yet.
void PrintServer::makeDefault(const QString& name) const {
  QFile::remove(path("home/.cups/lpoptions"));
  outputOf("lpadmin", {"-d", name});
}

QString PrintServer::document(const QString& queue) const {
  return path("printed/" + queue + ".pdf");
}

// Behind the document only the printer's own language follows.
bool PrintServer::hasPrinted(const QString& queue) const {
  QFile file(document(queue));
  return file.open(QIODevice::ReadOnly) && file.readAll().right(64).contains("%%EOF");
}

}  // namespace odmiennik::window_test
