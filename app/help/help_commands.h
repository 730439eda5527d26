// SPDX-License-Identifier: GPL-3.0-or-later
// Every way from the main window to the help and to the about window.
#pragma once

#include <functional>

#include "app/about/about_window.h"
#include "app/help/help_key.h"
#include "app/help/help_viewer.h"
#include "app/help/tense_headings.h"
#include "dictionary/messages.h"

namespace odmiennik::app {

class MainWindow;

// The commands of the menu, the tense headings, and F1 in every window: in a form box the page of
// its tense, in a window beside the main one its own or that of the window it belongs to, elsewhere
// the first page of the help.
class HelpCommands {
 public:
  // `store` keeps what the viewer keeps; `usage` is asked whenever the about window opens.
  HelpCommands(MainWindow& window, UserStore& store, dictionary::MessageBoxes& messages,
               std::function<Usage()> usage);

  HelpCommands(const HelpCommands&) = delete;
  HelpCommands& operator=(const HelpCommands&) = delete;

  [[nodiscard]] HelpViewer& help() { return help_; }

  // The first page of the help.
  void open();

  void showAbout();

 private:
  void openForFocus();

  MainWindow& window_;
  dictionary::MessageBoxes& messages_;
  std::function<Usage()> usage_;
  HelpViewer help_;
  TenseHeadings headings_;
  HelpKey key_;
};

}  // namespace odmiennik::app
