// The buttons of the list window.
#include "dictionary/verb_list_commands.h"

namespace odmiennik::dictionary {
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

}  // namespace odmiennik::dictionary
