// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons of the list window: what they ask of the main window, and when they can be seen.
#pragma once

#include <cstdint>
#include <string_view>

#include "engine/utf8.h"

namespace odmiennik::app {

// The commands of the main window that the list drives. Each returns false when it stopped because
// an edited verb could not be saved.
class MainCommands {
 public:
  virtual ~MainCommands() = default;
  [[nodiscard]] virtual bool isEditing() const = 0;
  [[nodiscard]] virtual bool edit() = 0;
  [[nodiscard]] virtual bool newVerb() = 0;
  // Puts the infinitive (Windows-1252) into its box and conjugates it.
  [[nodiscard]] virtual bool conjugate(std::string_view infinitive) = 0;
  [[nodiscard]] virtual bool print() = 0;
};

enum class ListButton : std::uint8_t { cmdOdmień, cmdEdytuj, cmdNowy, cmdDrukuj };

// Runs a button's commands on the selected verb, and no further than the first that stops. A main
// window that is being edited is left first, which may ask to save. Without a selected verb only
// cmdNowy does something.
bool runListButton(ListButton button, std::string_view selected, MainCommands& main);

// How the window is opened: as the list, or for deleting.
enum class ListPurpose : std::uint8_t { list, deletion };

struct ListAppearance {
  Utf8View caption;
  bool showsOtherButtons = true;  // cmdOdmień, cmdEdytuj, cmdNowy, cmdDrukuj
  bool isDeleteMoved = false;     // cmdUsuń stands in the place of cmdOdmień
};

// The window stands as designed whenever it is opened as the list, also after a deletion.
[[nodiscard]] constexpr ListAppearance appearanceOf(ListPurpose purpose) {
  if (purpose == ListPurpose::list) return {.caption = "Lista czasowników"};
  return {.caption = "Usuń czasownik", .showsOtherButtons = false, .isDeleteMoved = true};
}

// What an empty list says in the place of its verbs: what to do now, or that the index has none.
// `choice` is the item of cmbLista.
[[nodiscard]] Utf8Text emptyListHint(ListPurpose purpose, int choice);

}  // namespace odmiennik::app
