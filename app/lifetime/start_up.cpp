// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of the start, carried out.
#include "app/lifetime/start_up.h"

#include <QAction>
#include <QCoreApplication>
#include <QVersionNumber>

#include "app/common/look.h"
#include "app/common/text.h"
#include "app/controls/main_menu.h"
#include "app/lifetime/closing.h"
#include "app/lifetime/settings_keeper.h"
#include "app/main_window/cursors.h"
#include "app/main_window/main_window.h"
#include "app/main_window/window_pointer.h"
#include "app/platform/platform.h"
#include "app/tips/tip_of_the_day.h"
#include "disk/names.h"

namespace odmiennik::app {
namespace {

// Where the system has no character map, the item is disabled.
void offerCharacterMap(QAction& item) { item.setEnabled(!platform::characterMap().empty()); }

}  // namespace

// What asks or tells the user something may end the program, and then nothing follows.
void StartUp::run() {
  parts_.pointer.showHourglass();
  showWindow();
  if (!rescaleForScreen() || !goesOn()) return;
  readSettings();
  if (!goesOn()) return;
  checkFirstStart();
  if (!goesOn()) return;
  parts_.conjugateGivenVerb();  // before the tip, which waits to be closed
  if (!goesOn()) return;
  waitForFirstPicture(parts_.window);  // which the making of the tip would put off
  if (!goesOn()) return;
  parts_.tips.showAtStart();
  if (!goesOn()) return;
  parts_.settings.countRun();
  parts_.pointer.showDefault();
}

bool StartUp::goesOn() const { return !parts_.closing.hasEnded(); }

// It is seen with the caption and the pronouns that it keeps, in the size that it is designed for.
void StartUp::showWindow() {
  parts_.setHelpFile();
  parts_.pointer.setDefault(arrowCursor());
  showHandOverTopics(parts_.window.controls());
  parts_.window.showEmptyTable();
  offerCharacterMap(menuItem(*parts_.window.menuBar(), "mnuEdycjaTablica"));
  showVersionInCaption();
  parts_.window.show();
  parts_.window.selectEntryWord();
}

void StartUp::showVersionInCaption() {
  const auto version = QVersionNumber::fromString(QCoreApplication::applicationVersion());
  parts_.window.setWindowTitle(fromUtf8(captionWithVersion(
      {version.majorVersion(), version.minorVersion(), version.microVersion()})));
}

bool StartUp::rescaleForScreen() {
  return !isRescaledAtStart(parts_.layout.screenTwips()) || parts_.layout.rescale();
}

// The count in the settings tells whether verbs are missing. Where the user's store cannot be read,
// what follows goes by its defaults.
void StartUp::readSettings() {
  parts_.settings.ReadSettings();
  if (!parts_.isUserStoreUsable())
    parts_.messages.show(dictionary::MessageId::settingsNotRead);  // the user's own
  parts_.userVerbs.recoverAfterCrash();
}

void StartUp::checkFirstStart() {
  if (!disk::existingFile(parts_.prefix, kFirstStartMarker)) return;
  parts_.messages.show(dictionary::MessageId::restartSystemFirst);
  parts_.closing.closeWithoutQuestion();
}

}  // namespace odmiennik::app
