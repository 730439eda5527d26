// Every way from the main window to the help and to the about window.
#pragma once

#include <functional>

#include "app/about/about_window.h"
#include "app/help/help_viewer.h"
#include "app/help/tense_headings.h"
#include "dictionary/messages.h"

namespace odmiennik::app {

class MainWindow;

// The items of the menu, the tense headings, and F1: in a form box the page of its tense, in the
// verb list its own, elsewhere the first page of the help.
class HelpCommands {
 public:
  // `usage` is asked whenever the about window opens.
  HelpCommands(MainWindow& window, dictionary::MessageBoxes& messages,
               std::function<Usage()> usage);

  [[nodiscard]] HelpViewer& help() { return help_; }

 private:
  void openForFocus(const MainWindow& window);

  HelpViewer help_;
  TenseHeadings headings_;
};

}  // namespace odmiennik::app
