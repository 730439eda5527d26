// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that edit and conjugate, from the menu, the keys and the other windows.
#pragma once

#include <QObject>
#include <functional>

#include "app/editing/edited_window.h"
#include "app/logic/edit_mode.h"
#include "app/logic/verb_list_commands.h"

namespace odmiennik::app {

// Every command asks first whether to save what is not saved. Each returns false when it stopped:
// the save was refused or failed, or another command still waits for an answer; window and texts
// are then as they were.
class Editing final : public QObject, public MainCommands {
  Q_OBJECT

 public:
  // `print` is what the list's print command runs.
  Editing(MainWindow& window, WindowPointer& pointer, dictionary::UserVerbsFile& userVerbs,
          dictionary::MessageBoxes& messages, std::function<bool()> print);

  [[nodiscard]] bool isEditing() const override { return mode_.isEditing(); }

  // Conjugates the text of the entry box; edit mode is left.
  bool conjugate() { return run(&EditMode::conjugate); }
  bool conjugate(std::string_view infinitive) override;

  // Enters edit mode, or leaves it like conjugate().
  bool edit() override { return run(&EditMode::edit); }
  // Enters edit mode, or leaves it, from the event loop: whoever asks to leave twice, before the
  // first command has run, does not enter it again.
  void enterOrLeaveLater();
  bool newVerb() override;
  // Gives up the user's own forms of the shown verb for the program's, once the user agrees.
  bool restore() { return run(&EditMode::restore); }

  bool save() { return run(&EditMode::save); }

  // Asked when the window is to be closed, once the user has said that it may be.
  [[nodiscard]] bool leaveForClosing() { return run(&EditMode::leaveForClosing); }

  // The window has not been closed after all.
  void stay() { mode_.stay(); }

  bool print() override { return print_(); }

 private:
  void connectControls();
  bool run(bool (EditMode::*command)());
  void boxChanged();
  void offerRestoring();

  MainWindow& window_;
  EditedWindow edited_;
  EditMode mode_;
  std::function<bool()> print_;
};

}  // namespace odmiennik::app
