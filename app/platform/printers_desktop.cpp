// SPDX-License-Identifier: GPL-3.0-or-later
// The printers of desktops other than Windows: CUPS.
#include <QLibrary>
#include <QProcess>
#include <QString>

#include "app/platform/printers.h"

namespace odmiennik::app::platform {

// The default is written by the print system's own tool into the user's options.
bool makeDefaultPrinter(const Utf8Text& printer) {
  constexpr int kLimitMilliseconds = 10'000;
  if (printer.empty()) return false;
  QProcess tool;
  tool.start(QStringLiteral("lpoptions"), {QStringLiteral("-d"), QString::fromUtf8(printer)});
  return tool.waitForFinished(kLimitMilliseconds) && tool.exitStatus() == QProcess::NormalExit &&
         tool.exitCode() == 0;
}

// Qt loads the same library to hand documents over; where it is absent there is no printer either.
bool hasPrintSystemRefused() {
  using LastError = int (*)();
  static const auto lastError =
      reinterpret_cast<LastError>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsLastError"));
  constexpr int kLastSuccessfulStatus = 0xFF;  // of the printing protocol, RFC 8011
  if (lastError == nullptr) return false;
  const int status = lastError();
  return status < 0 || status > kLastSuccessfulStatus;
}

}  // namespace odmiennik::app::platform
