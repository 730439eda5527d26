// SPDX-License-Identifier: GPL-3.0-or-later
// window_test SUITE [options of Qt Test]: runs one suite on a program prepared like the real one.
#include <QTest>
#include <cstdio>
#include <map>
#include <string>

#include "app/common/look.h"
#include "tests/window/suites.h"
#include "tests/window/watched_application.h"

int main(int argumentCount, char** arguments) {
  using namespace odmiennik::window_test;
  const std::map<std::string, std::unique_ptr<QObject> (*)()> suites{
      {"about", aboutSuite},
      {"accessibility", accessibilitySuite},
      {"always_on_top", alwaysOnTopSuite},
      {"auxiliary_focus", auxiliaryFocusSuite},
      {"clipping", clippingSuite},
      {"closing", closingSuite},
      {"colours", coloursSuite},
      {"conjugating", conjugatingSuite},
      {"contrast", contrastSuite},
      {"copying", copyingSuite},
      {"damaged_settings", damagedSettingsSuite},
      {"demonstration", demonstrationSuite},
      {"design", designSuite},
      {"dialog_bars", dialogBarsSuite},
      {"edit_menu", editMenuSuite},
      {"editing", editingSuite},
      {"editing_keys", editingKeysSuite},
      {"elision", elisionSuite},
      {"entry_box", entryBoxSuite},
      {"entry_keys", entryKeysSuite},
      {"explaining", explainingSuite},
      {"exporting", exportingSuite},
      {"finding", findingSuite},
      {"form_letters", formLettersSuite},
      {"help", helpSuite},
      {"help_faults", helpFaultsSuite},
      {"help_key", helpKeySuite},
      {"help_printing", helpPrintingSuite},
      {"help_reading", helpReadingSuite},
      {"help_search", helpSearchSuite},
      {"hostile_help", hostileHelpSuite},
      {"letters", lettersSuite},
      {"list", listSuite},
      {"list_commands", listCommandsSuite},
      {"look", lookSuite},
      {"locked_boxes", lockedBoxesSuite},
      {"menu", menuSuite},
      {"message_box", messageBoxSuite},
      {"norm", normSuite},
      {"own_verbs", ownVerbsSuite},
      {"pointer", pointerSuite},
      {"print_queue", printQueueSuite},
      {"printing", printingSuite},
      {"refused_save", refusedSaveSuite},
      {"rescaling", rescalingSuite},
      {"restoring", restoringSuite},
      {"saved_list", savedListSuite},
      {"saving", savingSuite},
      {"settings", settingsSuite},
      {"small_screen", smallScreenSuite},
      {"spoken", spokenSuite},
      {"start_up", startUpSuite},
      {"steady_windows", steadyWindowsSuite},
      {"stopped_demonstration", stoppedDemonstrationSuite},
      {"tense_headings", tenseHeadingsSuite},
      {"tip", tipSuite},
      {"tooltips", tooltipsSuite},
      {"whole_windows", wholeWindowsSuite}};
  if (argumentCount < 2 || !suites.contains(arguments[1])) {
    std::fputs("usage: window_test SUITE [options]\n", stderr);
    return 2;
  }
  const auto makeSuite = suites.at(arguments[1]);
  arguments[1] = arguments[0];
  WatchedApplication application(--argumentCount, ++arguments);
  odmiennik::app::prepare(application);
  const std::unique_ptr<QObject> suite = makeSuite();
  return QTest::qExec(suite.get(), argumentCount, arguments);
}
