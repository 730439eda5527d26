// The steps of the start, carried out.
#include "app/lifetime/start_up.h"

#include <QCoreApplication>
#include <QVersionNumber>

#include "app/common/text.h"
#include "app/controls/main_menu.h"
#include "app/lifetime/closing.h"
#include "app/lifetime/settings_keeper.h"
#include "app/main_window/cursors.h"
#include "app/main_window/main_window.h"
#include "app/main_window/window_pointer.h"
#include "app/platform/character_map.h"
#include "app/tips/tip_of_the_day.h"
#include "dictionary/file_names.h"

namespace odmiennik::app {
void StartUp::run() {
  for (const StartUpStep step : kStartUpSteps)
    if (!take(step) || needs_.closing.hasEnded()) return;
}

bool StartUp::take(StartUpStep step) {
  switch (step) {
    case StartUpStep::showHourglass:
      needs_.pointer.showHourglass();
      break;
    case StartUpStep::setHelpFile:
      needs_.setHelpFile();
      break;
    case StartUpStep::loadCursors:
      needs_.pointer.setDefault(arrowCursor());
      showHandOverTopics(needs_.window.controls());
      break;
    case StartUpStep::takeDesignSize:
      break;  // the layout is made with it
    case StartUpStep::showEmptyPronouns:
      needs_.window.showEmptyTable();
      break;
    case StartUpStep::findCharacterMap:
      offerCharacterMap(menuItem(*needs_.window.menuBar(), "mnuEdycjaTablica"));
      break;
    case StartUpStep::showVersionInCaption:
      showVersionInCaption();
      break;
    case StartUpStep::showWindow:
      needs_.window.show();
      break;
    case StartUpStep::selectEntryWord:
      needs_.window.selectEntryWord();
      break;
    case StartUpStep::rescaleForScreen:
      return rescaleForScreen();
    case StartUpStep::readSettings:
      readSettings();
      break;
    case StartUpStep::checkFirstStart:
      checkFirstStart();
      break;
    case StartUpStep::conjugateGivenVerb:
      needs_.conjugateGivenVerb();
      break;
    case StartUpStep::showTipOfTheDay:
      needs_.tips.showAtStart();
      break;
    case StartUpStep::countRun:
      needs_.settings.countRun();
      break;
    case StartUpStep::showPointer:
      needs_.pointer.showDefault();
      break;
  }
  return true;
}

void StartUp::showVersionInCaption() {
  const auto version = QVersionNumber::fromString(QCoreApplication::applicationVersion());
  needs_.window.setWindowTitle(fromUtf8(captionWithVersion(
      {version.majorVersion(), version.minorVersion(), version.microVersion()})));
}

bool StartUp::rescaleForScreen() {
  return !isRescaledAtStart(needs_.layout.screenTwips()) || needs_.layout.rescale();
}

// The count in the settings tells whether verbs are missing. Where the user's store cannot be read,
// what follows goes by its defaults.
void StartUp::readSettings() {
  needs_.settings.ReadSettings();
  if (!needs_.isUserStoreUsable())
    needs_.messages.show(dictionary::MessageId::settingsNotRead);  // the user's own
  needs_.userVerbs.recoverAfterCrash();
}

void StartUp::checkFirstStart() {
  if (!dictionary::existingFile(needs_.prefix, kFirstStartMarker)) return;
  needs_.messages.show(dictionary::MessageId::restartSystemFirst);
  needs_.closing.closeWithoutQuestion();
}

}  // namespace odmiennik::app
