// The print command and the choice of the printer.
#pragma once

#include <QMainWindow>

#include "app/printing/print_choices.h"
#include "dictionary/messages.h"

namespace odmiennik::app {

// Connects mnuPlikDrukuj and mnuPlikUstawieniaDrukarki of `main`, which outlives it.
class Printing {
 public:
  Printing(QMainWindow& main, dictionary::MessageBoxes& messages);

  // Prints the client area on the current printer without asking, but for the controls that mean
  // nothing on paper. Shows the message that the printer is not ready and returns false when that
  // fails.
  bool print();

 private:
  QMainWindow& main_;
  dictionary::MessageBoxes& messages_;
  PrintChoices choices_;
};

}  // namespace odmiennik::app
