// window_test SUITE [options of Qt Test]: runs one suite on a program prepared like the real one.
#include <QApplication>
#include <QTest>
#include <cstdio>
#include <map>
#include <string>

#include "app/common/look.h"
#include "tests/window/suites.h"

int main(int argumentCount, char** arguments) {
  using namespace odmiennik::window_test;
  const std::map<std::string, std::unique_ptr<QObject> (*)()> suites{
      {"accessibility", accessibilitySuite},
      {"rescaling", rescalingSuite},
      {"small_screen", smallScreenSuite},
      {"colours", coloursSuite},
      {"always_on_top", alwaysOnTopSuite},
      {"demonstration", demonstrationSuite},
      {"design", designSuite},
      {"conjugating", conjugatingSuite},
      {"entry_box", entryBoxSuite},
      {"entry_keys", entryKeysSuite},
      {"editing", editingSuite},
      {"saving", savingSuite},
      {"letters", lettersSuite},
      {"edit_menu", editMenuSuite},
      {"menu", menuSuite},
      {"message_box", messageBoxSuite},
      {"look", lookSuite},
      {"start_up", startUpSuite},
      {"settings", settingsSuite},
      {"closing", closingSuite},
      {"tip", tipSuite},
      {"list", listSuite},
      {"list_commands", listCommandsSuite},
      {"printing", printingSuite},
      {"help", helpSuite},
      {"hostile_help", hostileHelpSuite},
      {"tense_headings", tenseHeadingsSuite},
      {"about", aboutSuite},
      {"print_queue", printQueueSuite}};
  if (argumentCount < 2 || !suites.contains(arguments[1])) {
    std::fputs("usage: window_test SUITE [options]\n", stderr);
    return 2;
  }
  const auto makeSuite = suites.at(arguments[1]);
  arguments[1] = arguments[0];
  QApplication application(--argumentCount, ++arguments);
  odmiennik::app::prepare(application);
  const std::unique_ptr<QObject> suite = makeSuite();
  return QTest::qExec(suite.get(), argumentCount, arguments);
}
