// The program `odmiennik`: puts the parts together and starts.
#include <QApplication>
#include <filesystem>
#include <system_error>

#include "app/common/look.h"
#include "app/common/qt_message_boxes.h"
#include "app/platform/platform.h"
#include "app/program.h"
#include "dictionary/file_names.h"
#include "dictionary/program_folder.h"

namespace {

using namespace odmiennik;

// The program's own folder; an installed program's is the user's, who may not have one yet.
std::string ownFolder() {
  const std::string folder = dictionary::programFolder();
  std::error_code ignored;  // the settings tell when they cannot be written
  std::filesystem::create_directories(dictionary::pathOf(folder), ignored);
  return folder;
}

// The folder named with --folder, else the program's own.
std::string folderOf(const QStringList& arguments) {
  const qsizetype option = arguments.indexOf(QLatin1String("--folder"));
  if (option < 0 || option + 1 >= arguments.size()) return ownFolder();
  const std::string named = arguments.at(option + 1).toStdString();
  return std::string(dictionary::withoutTrailingSeparators(named));
}

}  // namespace

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  app::prepare(application);
  app::QtMessageBoxes messages;
  app::UserStore store;
  app::Program program({.folder = folderOf(QApplication::arguments()),
                        .messages = messages,
                        .store = store,
                        .end = [] { QApplication::exit(); }});
  app::platform::onTermination([&program] { program.closing().endNow(); });
  QMetaObject::invokeMethod(
      &application, [&program] { program.start(); }, Qt::QueuedConnection);
  return QApplication::exec();
}
