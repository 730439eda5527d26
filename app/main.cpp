// SPDX-License-Identifier: GPL-3.0-or-later
// The program `odmiennik`: puts the parts together and starts.
#include <QApplication>
#include <filesystem>
#include <optional>
#include <system_error>

#include "app/common/dialog_bars.h"
#include "app/common/look.h"
#include "app/common/qt_message_boxes.h"
#include "app/logic/program_arguments.h"
#include "app/platform/platform.h"
#include "app/program.h"
#include "disk/names.h"
#include "disk/program_folder.h"

namespace odmiennik::app {
namespace {

// The folder that keeps the user's verbs and settings: the one named with --folder, else the
// program's own, which is created for a user who has none yet.
Utf8Text programFolderOf(const std::optional<Utf8Text>& named) {
  if (named) return *named;
  Utf8Text folder = disk::programFolder();
  std::error_code ignored;  // the settings tell when they cannot be written
  std::filesystem::create_directories(disk::pathOf(folder), ignored);
  return folder;
}

int runWindow(QApplication& application, const ProgramArguments& given) {
  prepare(application);
  if (!platform::mayPlaceWindows()) new DialogBars(&application);
  QtMessageBoxes messages;
  UserStore store;
  Program program({.folder = programFolderOf(given.folder),
                   .messages = messages,
                   .store = store,
                   .end = [] { QApplication::exit(); },
                   .verb = given.verb});
  platform::onTermination([&program] { program.closing().endNow(); });
  QMetaObject::invokeMethod(
      &application, [&program] { program.start(); }, Qt::QueuedConnection);
  return QApplication::exec();
}

}  // namespace
}  // namespace odmiennik::app

// What is only told needs no screen: no application is made for it.
int main(int argumentCount, char** arguments) {
  using namespace odmiennik::app;
  const ProgramArguments given =
      programArguments(platform::arguments(argumentCount, arguments), ODMIENNIK_VERSION);
  if (!given.told.empty()) {
    constexpr int kWrongUsage = 2;
    platform::tell(given.told, given.isRefused);
    return given.isRefused ? kWrongUsage : 0;
  }
  platform::chooseFontEngine();
  QApplication application(argumentCount, arguments);
  return runWindow(application, given);
}
