// SPDX-License-Identifier: GPL-3.0-or-later
// What the items of the menu do.
#pragma once

namespace odmiennik::app {

class Editing;
class ExplainMenu;
class Exporting;
class FindMenu;
class HelpCommands;
class ListMenu;
class MainWindow;
class Printing;
class TipOfTheDay;
class Typing;
class ViewMenu;

// Who carries the commands out; all of them outlive the window's menu.
struct CommandParts {
  MainWindow& window;
  Editing& editing;
  Exporting& exporting;
  Typing& typing;
  ListMenu& list;
  FindMenu& find;
  ExplainMenu& explain;
  TipOfTheDay& tips;
  Printing& printing;
  ViewMenu& view;
  HelpCommands& help;
};

// Connects every item of the menu with its command; an item that has none does not compile. Called
// once, when all parts are there.
void connectMenuCommands(const CommandParts& parts);

}  // namespace odmiennik::app
