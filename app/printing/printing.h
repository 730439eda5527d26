// SPDX-License-Identifier: GPL-3.0-or-later
// The print command and the choice of the printer.
#pragma once

#include "app/printing/print_choices.h"
#include "dictionary/messages.h"

namespace odmiennik::app {

class MainWindow;

// Prints `main`, which outlives it.
class Printing {
 public:
  Printing(MainWindow& main, dictionary::MessageBoxes& messages);

  // Prints the client area on the current printer without asking, in its look for paper and but
  // for the controls that mean nothing there. Shows the message that the printer is not ready and
  // returns false when that fails.
  bool print();

  // Lets the user choose the printer that everything is printed on from now on, and how. Nothing is
  // printed; Cancel leaves things as they are.
  void setUp();

 private:
  MainWindow& main_;
  dictionary::MessageBoxes& messages_;
  PrintChoices choices_;
};

}  // namespace odmiennik::app
