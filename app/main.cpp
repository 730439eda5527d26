// The program `odmiennik`: puts the parts together and starts.
#include <QApplication>

#include "app/common/look.h"
#include "app/common/qt_message_boxes.h"
#include "app/lifetime/program_arguments.h"
#include "app/platform/platform.h"
#include "app/program.h"

int main(int argumentCount, char** arguments) {
  using namespace odmiennik;
  QApplication application(argumentCount, arguments);
  app::prepare(application);
  app::QtMessageBoxes messages;
  app::UserStore store;
  app::Program program({.folder = app::folderOfArguments(application),
                        .messages = messages,
                        .store = store,
                        .end = [] { QApplication::exit(); }});
  app::platform::onTermination([&program] { program.closing().endNow(); });
  QMetaObject::invokeMethod(
      &application, [&program] { program.start(); }, Qt::QueuedConnection);
  return QApplication::exec();
}
