// The program `odmiennik`: puts the parts together and starts.
#include <QApplication>

#include "app/common/look.h"
#include "app/common/qt_message_boxes.h"
#include "app/lifetime/program_settings.h"
#include "app/main_window/main_window.h"
#include "app/main_window/window_shell.h"
#include "dictionary/app_folder.h"
#include "dictionary/builtin_verbs.h"
#include "dictionary/program_folder.h"
#include "dictionary/user_verbs.h"
#include "dictionary/verb_index.h"
#include "groups/rules.h"

namespace {

using namespace odmiennik;

// The folder named with --folder, else the program's own.
std::string folderOf(const QStringList& arguments) {
  const qsizetype option = arguments.indexOf(QLatin1String("--folder"));
  if (option < 0 || option + 1 >= arguments.size()) return dictionary::programFolder();
  const std::string named = arguments.at(option + 1).toStdString();
  return std::string(dictionary::withoutTrailingSeparators(named));
}

}  // namespace

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  app::prepare(application);
  const std::string prefix = dictionary::AppFolder(folderOf(QApplication::arguments()));

  app::QtMessageBoxes messages;
  dictionary::UserVerbsFile userVerbs(prefix, app::storedUserVerbCount(prefix), messages);
  userVerbs.recoverAfterCrash();
  app::WindowShell shell(messages, [&prefix] {
    app::writeDefaultSettings(prefix);
    QApplication::exit();
  });
  dictionary::GeneralVerbIndex index;
  const dictionary::BuiltinVerbTable builtinVerbs;
  const groups::VerbGroups rules;
  engine::Driver driver({index, userVerbs, builtinVerbs, rules, shell});

  app::MainWindow window(driver);
  window.show();
  return QApplication::exec();
}
