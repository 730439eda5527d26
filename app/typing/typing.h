// SPDX-License-Identifier: GPL-3.0-or-later
// Everything about typing into the boxes, put together.
#pragma once

#include "app/typing/autocompletion.h"
#include "app/typing/auxiliary_focus.h"
#include "app/typing/box_keys.h"
#include "app/typing/current_box.h"
#include "app/typing/edit_menu.h"
#include "app/typing/enter_key.h"
#include "app/typing/letter_buttons.h"
#include "app/typing/refused_letters.h"

namespace odmiennik::app {

class MainWindow;

class Typing {
 public:
  // `help` is what the Help button of the read-only boxes' hint opens.
  Typing(MainWindow& window, UserStore& store, dictionary::MessageBoxes& messages,
         HelpOpener& help);

  // Switches completion on or off.
  void invertCompletion() { completion_.invert(); }

  // Nothing is completed while the program itself types.
  void suspendCompletion(bool isSuspended) { completion_.suspend(isSuspended); }

  // The letter buttons type into a field of another window too, when the user has come from there.
  void alsoServe(QLineEdit& field) { current_.alsoServe(field); }

  // The box that last had the focus.
  [[nodiscard]] const CurrentBox& current() const { return current_; }

 private:
  CurrentBox current_;
  Autocompletion completion_;
  BoxKeys keys_;
  RefusedLetters refused_;
  LetterButtons letters_;
  AuxiliaryFocus auxiliary_;
  EnterKey enter_;
  EditMenu menu_;
};

}  // namespace odmiennik::app
