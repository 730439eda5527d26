// SPDX-License-Identifier: GPL-3.0-or-later
// The start of the program, step by step.
#pragma once

#include <functional>

#include "app/logic/start_up.h"
#include "dictionary/messages.h"
#include "dictionary/user_verbs.h"
#include "engine/utf8.h"

namespace odmiennik::app {

class Closing;
class MainWindow;
class SettingsKeeper;
class TipOfTheDay;
class WindowPointer;

// The layout of the window, as far as the start needs it.
struct LayoutPort {
  std::function<int()> screenTwips;  // the screen's width
  // Fits the layout to the screen; false when the user does not go on in its resolution, which has
  // ended the program.
  std::function<bool()> rescale = [] { return true; };
};

class StartUp {
 public:
  struct Parts {
    Utf8Text prefix;  // of the program's files
    MainWindow& window;
    WindowPointer& pointer;
    SettingsKeeper& settings;
    dictionary::UserVerbsFile& userVerbs;
    TipOfTheDay& tips;
    Closing& closing;
    dictionary::MessageBoxes& messages;
    LayoutPort layout = {};
    std::function<bool()> isUserStoreUsable = [] { return true; };
    std::function<void()> setHelpFile = [] {};         // tells the help where its file is
    std::function<void()> conjugateGivenVerb = [] {};  // the command line's, if there is one
  };
  explicit StartUp(Parts parts) : parts_(std::move(parts)) {}

  // Takes all steps in their order; stops at one that ends the program. To be called from the event
  // loop, which is what the program is ended through.
  void run();

 private:
  [[nodiscard]] bool goesOn() const;
  void showWindow();
  void showVersionInCaption();
  [[nodiscard]] bool rescaleForScreen();
  void readSettings();
  void checkFirstStart();

  Parts parts_;
};

}  // namespace odmiennik::app
