// The commands that edit and conjugate, from the menu, the keys and the other windows.
#pragma once

#include <QObject>
#include <functional>

#include "app/editing/edited_window.h"
#include "dictionary/edit_mode.h"
#include "dictionary/verb_list_commands.h"

namespace odmiennik::app {

// Every command asks first whether to save what is not saved. Each returns false when it stopped:
// the save was refused or failed, or another command still waits for an answer; window and texts
// are then as they were.
class Editing final : public QObject, public dictionary::MainCommands {
  Q_OBJECT

 public:
  Editing(MainWindow& window, WindowPointer& pointer, dictionary::UserVerbsFile& userVerbs,
          dictionary::MessageBoxes& messages);

  [[nodiscard]] bool isEditing() const override { return mode_.isEditing(); }

  // Conjugates the text of the entry box; edit mode is left.
  bool conjugate() { return run(dictionary::EditCommand::conjugate); }
  bool conjugate(std::string_view infinitive) override;

  // Enters edit mode, or leaves it like conjugate().
  bool edit() override { return run(dictionary::EditCommand::edit); }
  bool newVerb() override;
  // Gives up the user's own forms of the shown verb for the program's, once the user agrees.
  bool restore() { return run(dictionary::EditCommand::restore); }

  bool save() { return run(dictionary::EditCommand::save); }

  // Asked when the window is to be closed, once the user has said that it may be.
  [[nodiscard]] bool leaveForClosing() { return run(dictionary::EditCommand::close); }

  // The window has not been closed after all.
  void stay() { mode_.stay(); }

  // What the list's print command runs; until then it prints nothing and fails.
  void printWith(std::function<bool()> print) { print_ = std::move(print); }
  bool print() override { return print_ && print_(); }

 private:
  void connectCommands();
  void enterOrLeave();
  bool run(dictionary::EditCommand command);
  void boxChanged();
  void offerRestoring();

  MainWindow& window_;
  EditedWindow edited_;
  dictionary::MessageBoxes& messages_;
  dictionary::EditMode mode_;
  std::function<bool()> print_;
  bool isRunning_ = false;
};

}  // namespace odmiennik::app
