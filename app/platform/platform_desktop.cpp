// The seam on desktops other than Windows.
#include <QProcess>
#include <QStandardPaths>
#include <QString>

#include "app/platform/platform.h"

namespace odmiennik::app::platform {

std::string characterMap() {
  for (const char* program : {"gucharmap", "gnome-characters", "kcharselect"}) {
    const QString found = QStandardPaths::findExecutable(QLatin1String(program));
    if (!found.isEmpty()) return found.toStdString();
  }
  return {};
}

bool start(const std::string& program) {
  return QProcess::startDetached(QString::fromStdString(program), {});
}

}  // namespace odmiennik::app::platform
