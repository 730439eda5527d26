// SPDX-License-Identifier: GPL-3.0-or-later
// The whole program but for its main function: all parts, put together.
#pragma once

#include <functional>
#include <string>

#include "app/common/user_store.h"
#include "app/demonstration/demonstration.h"
#include "app/editing/editing.h"
#include "app/explaining/explain_menu.h"
#include "app/exporting/exporting.h"
#include "app/finding/find_menu.h"
#include "app/help/help_commands.h"
#include "app/hints/tooltips.h"
#include "app/lifetime/closing.h"
#include "app/lifetime/settings_keeper.h"
#include "app/lifetime/start_up.h"
#include "app/list/list_menu.h"
#include "app/logic/norm_of_verb.h"
#include "app/logic/silent_shell.h"
#include "app/main_window/main_window.h"
#include "app/main_window/window_pointer.h"
#include "app/main_window/window_shell.h"
#include "app/printing/printing.h"
#include "app/tips/tip_of_the_day.h"
#include "app/typing/typing.h"
#include "app/view/colour_chooser.h"
#include "app/view/view_menu.h"
#include "dictionary/builtin_verbs.h"
#include "dictionary/user_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/utf8.h"
#include "groups/rules.h"

namespace odmiennik::app {

class Program {
 public:
  // What differs between the program itself and a test of it. `folder` keeps the user's verbs and
  // the settings; `end` ends the program at once.
  struct Environment {
    Utf8Text folder;
    dictionary::MessageBoxes& messages;
    UserStore& store;
    std::function<void()> end;
    disk::FileSystem& files = disk::systemFiles();
    ScreenPointer pointer = systemPointer();
    QStringList helpPlaces = helpFilePlaces();
    std::optional<std::string> verb = {};  // conjugated at the start, Windows-1252
  };
  explicit Program(const Environment& environment);
  ~Program();

  // Takes the steps of the start; called from the event loop.
  void start() { startUp_.run(); }

  [[nodiscard]] MainWindow& window() { return window_; }
  [[nodiscard]] SettingsKeeper& settings() { return settings_; }
  [[nodiscard]] dictionary::UserVerbsFile& userVerbs() { return userVerbs_; }
  [[nodiscard]] Closing& closing() { return closing_; }
  [[nodiscard]] Editing& editing() { return editing_; }
  [[nodiscard]] Typing& typing() { return typing_; }
  [[nodiscard]] TipOfTheDay& tips() { return tips_; }
  [[nodiscard]] DemonstrationRunner& demonstration() { return demonstration_; }

 private:
  [[nodiscard]] EditedVerb editedVerb();
  [[nodiscard]] Demonstrations demonstrations(dictionary::MessageBoxes& messages);
  [[nodiscard]] HeadingColourPort headingColours();
  [[nodiscard]] LayoutPort layout();

  Utf8Text prefix_;
  dictionary::UserVerbsFile userVerbs_;
  WindowShell shell_;
  dictionary::GeneralVerbIndex index_;
  dictionary::BuiltinVerbTable builtinVerbs_;
  groups::VerbGroups rules_;
  engine::Driver driver_;
  SilentShell silence_;
  engine::Driver silentDriver_;
  NormOfVerb norm_;
  MainWindow window_;
  WindowPointer pointer_;
  SettingsKeeper settings_;
  Closing closing_;
  TipOfTheDay tips_;
  StartUp startUp_;
  QtColourChooser chooser_;
  ViewMenu viewMenu_;
  Printing printing_;
  Editing editing_;
  HelpCommands help_;
  Typing typing_;
  Exporting exporting_;
  ListMenu listMenu_;
  FindMenu findMenu_;
  ExplainMenu explainMenu_;
  DemonstrationRunner demonstration_;
  Tooltips tooltips_;
};

}  // namespace odmiennik::app
