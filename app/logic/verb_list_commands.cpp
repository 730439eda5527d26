// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons of the list window.
#include "app/logic/verb_list_commands.h"

#include "app/logic/verb_list.h"

namespace odmiennik::app {
namespace {

bool conjugateSelected(std::string_view selected, MainCommands& main) {
  if (selected.empty()) return false;
  if (main.isEditing() && !main.edit()) return false;
  return main.conjugate(selected);
}

}  // namespace

bool runListButton(ListButton button, std::string_view selected, MainCommands& main) {
  if (button == ListButton::cmdNowy) return main.newVerb();
  if (!conjugateSelected(selected, main)) return false;
  if (button == ListButton::cmdEdytuj) return main.edit();
  if (button == ListButton::cmdDrukuj) return main.print();
  return true;
}

Utf8Text emptyListHint(ListPurpose purpose, int choice) {
  if (choice > 0)
    return Utf8Text("W spisie nie ma czasowników na literę „") + letterOfChoice(choice) + "”.";
  if (purpose == ListPurpose::deletion)
    return "Nie masz jeszcze własnych czasowników, więc nie ma czego usuwać.";
  return "Nie masz jeszcze własnych czasowników.\n\n"
         "Wybierz wyżej literę, aby zobaczyć czasowniki spisu. Własny czasownik wprowadzisz "
         "przyciskiem „Nowy” i zapiszesz w głównym oknie klawiszami Ctrl+S.";
}

}  // namespace odmiennik::app
