// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of the command line.
#include "app/logic/program_arguments.h"

#include <algorithm>
#include <vector>

#include "dictionary/printable.h"
#include "disk/program_folder.h"
#include "engine/windows1252.h"

namespace odmiennik::app {
namespace {

constexpr Utf8View kUsage =
    "Użycie: odmiennik [OPCJE] [CZASOWNIK]\n"
    "Otwiera okno odmiany francuskich czasowników i odmienia w nim CZASOWNIK.\n"
    "\n"
    "  --folder FOLDER   Folder programu: własne czasowniki i ustawienia leżą w FOLDERZE.\n"
    "  -h, --help        Wyświetla te opcje.\n"
    "  -v, --version     Wyświetla wersję programu.\n";

// Options that Qt reads when the application is made; it takes them with one dash and with two.
struct QtOption {
  Utf8View name;
  bool hasValue;
};
constexpr QtOption kQtOptions[] = {
    {"display", true},      {"geometry", true},        {"icon", true},
    {"platform", true},     {"platformtheme", true},   {"platformpluginpath", true},
    {"plugin", true},       {"qwindowgeometry", true}, {"qwindowicon", true},
    {"qwindowtitle", true}, {"session", true},         {"style", true},
    {"stylesheet", true},   {"title", true},           {"visual", true},
    {"dograb", false},      {"nograb", false},         {"qmljsdebugger", false},
    {"reverse", false},     {"sync", false},           {"testability", false},
    {"widgetcount", false},
};

using Rest = std::span<const Utf8Text>;

// "--style=fusion" -> "style"
Utf8View nameOf(Utf8View argument) {
  argument.remove_prefix(argument.starts_with("--") ? 2 : 1);
  return argument.substr(0, argument.find('='));
}

// Takes an option of Qt's off the arguments, with its value.
bool takeQtOption(Rest& rest) {
  const Utf8Text& argument = rest.front();
  const auto* option = std::ranges::find(kQtOptions, nameOf(argument), &QtOption::name);
  if (option == std::end(kQtOptions)) return false;
  const bool hasValueBehind = option->hasValue && argument.find('=') == std::string::npos;
  rest = rest.subspan(hasValueBehind && rest.size() > 1 ? 2 : 1);
  return true;
}

Utf8Text inQuotes(Utf8View text) { return "„" + Utf8Text(text) + "”"; }

class Reading {
 public:
  explicit Reading(Utf8View version) : version_(version) {}

  ProgramArguments readAll(Rest rest) {
    while (!rest.empty() && read_.told.empty()) readOne(rest);
    if (read_.told.empty()) takeVerb();
    return std::move(read_);
  }

 private:
  void readOne(Rest& rest) {
    const Utf8Text& argument = rest.front();
    const bool isOption = !areOptionsOver_ && argument.size() > 1 && argument.front() == '-';
    if (isOption && argument != "--") return readOption(rest);
    if (isOption)
      areOptionsOver_ = true;
    else
      verbs_.push_back(argument);
    rest = rest.subspan(1);
  }

  void readOption(Rest& rest) {
    const Utf8Text& argument = rest.front();
    if (takeQtOption(rest)) return;
    if (argument == "--help" || argument == "-h")
      read_.told = kUsage;
    else if (argument == "--version" || argument == "-v")
      read_.told = "Odmiennik " + version_ + "\n";
    else if (argument == "--folder" || argument.starts_with("--folder="))
      readFolder(rest);
    else
      refuse("nieznana opcja " + inQuotes(argument));
    rest = rest.subspan(1);
  }

  void readFolder(Rest& rest) {
    const Utf8Text& argument = rest.front();
    const auto equals = argument.find('=');
    Utf8View folder;
    if (equals != std::string::npos) {
      folder = Utf8View(argument).substr(equals + 1);
    } else if (rest.size() > 1) {
      rest = rest.subspan(1);
      folder = rest.front();
    }
    if (folder.empty()) return refuse("opcja „--folder” wymaga nazwy folderu");
    read_.folder = disk::withoutTrailingSeparators(folder);
  }

  void takeVerb() {
    if (verbs_.size() > 1) return refuse("podaj jeden czasownik, zwrotny w cudzysłowie");
    if (verbs_.empty()) return;
    engine::FromUtf8 french = engine::fromUtf8(verbs_.front());
    if (french.fault == engine::Utf8Fault::none)
      read_.verb = std::move(french.text);
    else
      refuse("nie ma takiego czasownika: " + inQuotes(verbs_.front()));
  }

  void refuse(Utf8View reason) {
    read_.isRefused = true;
    read_.told = "odmiennik: " + dictionary::printable(reason) + ".\n" + Utf8Text(kUsage);
  }

  Utf8Text version_;
  ProgramArguments read_;
  std::vector<Utf8View> verbs_;
  bool areOptionsOver_ = false;
};

}  // namespace

ProgramArguments programArguments(Rest arguments, Utf8View version) {
  return Reading(version).readAll(arguments);
}

}  // namespace odmiennik::app
