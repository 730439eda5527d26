// SPDX-License-Identifier: GPL-3.0-or-later
// The window frmLista: verbs to pick one from, the user's own or those of a letter.
#pragma once

#include <QElapsedTimer>
#include <functional>

#include "app/common/steady_window.h"
#include "app/list/list_controls.h"
#include "app/logic/saved_list.h"
#include "app/logic/verb_list.h"
#include "app/logic/verb_list_commands.h"
#include "app/logic/verb_search.h"
#include "dictionary/user_verbs.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// Hands everything that is done with a verb to the main window's commands, but for deleting the
// user's own. `userVerbs` and `main` outlive it.
class ListWindow final : public SteadyWindow<> {
  Q_OBJECT

 public:
  // Saves a list, asking over the window for a file.
  using Save = std::function<void(QWidget& window, SavedList list)>;

  // `prefix` names the program's folder; `mainWindow` is the parent and stays usable.
  ListWindow(const Utf8Text& prefix, dictionary::UserVerbsFile& userVerbs, MainCommands& main,
             Save save, QWidget* mainWindow);

  // Shows the window, not modal, as the list or for deleting. One that was closed begins again with
  // the user's own verbs; where they are listed they are read anew.
  void showFor(ListPurpose purpose);

  // The user's verbs have been saved or deleted elsewhere: where they are listed, they are listed
  // anew, with choice and place as they were.
  void followUserVerbs();

 protected:
  // The list goes by the room on its screen.
  bool event(QEvent* event) override;

 private:
  void connectControls();
  void ŁadujListęUżytkownika();
  void choose(int choice);
  void chooseAgain(int choice);
  void showEntries();
  void showState();
  void search(const QString& key);
  void run(ListButton button);
  void deleteSelected();
  void saveListed();

  Utf8Text prefix_;
  dictionary::UserVerbsFile& userVerbs_;
  MainCommands& main_;
  Save save_;
  VerbList list_;
  ListControls controls_;
  VerbSearch search_;
  QElapsedTimer sinceKey_;  // not yet valid before the first key
  ListPurpose purpose_ = ListPurpose::list;
  int choice_ = 0;
  bool isChosenAnew_ = false;  // the choice has just become another one
  bool isDeleting_ = false;
};

}  // namespace odmiennik::app
