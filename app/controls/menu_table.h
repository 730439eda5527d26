// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's menu tree, row by row.
#pragma once

#include <cstdint>

#include "engine/utf8.h"

namespace odmiennik::app {

enum class MenuKind : std::uint8_t { menu, item, checkableItem, separator };

// Whether the item's function exists; an item whose function does not is shown disabled.
enum class MenuState : std::uint8_t { ready, unavailable };

// Items and separators belong to the menu above them. "&" marks the access key.
struct MenuRow {
  MenuKind kind;
  Utf8View name;
  Utf8View caption;
  MenuState state = MenuState::unavailable;
  Utf8View keys = {};
};

// deliberate: the verb commands are named after the menu in which they once stood, and one
// separator is spelled "Lnia"; two menus share the access key C.
inline constexpr MenuRow kMainMenu[] = {
    {MenuKind::menu, "mnuPlik", "&Plik", MenuState::ready},
    {MenuKind::item, "mnuPlikZapiszCzasownik", "&Zapisz Czasownik", MenuState::unavailable,
     "Ctrl+S"},
    {MenuKind::item, "mnuPlikZapiszOdmianę", "Zapisz &odmianę jako…", MenuState::unavailable,
     "Ctrl+Shift+S"},
    {MenuKind::separator, "mnuPlikLinia1", ""},
    {MenuKind::item, "mnuPlikDrukuj", "&Drukuj", MenuState::ready, "Ctrl+P"},
    {MenuKind::item, "mnuPlikUstawieniaDrukarki", "&Ustawienia drukarki", MenuState::ready},
    {MenuKind::separator, "mnuPlikLinia2", ""},
    {MenuKind::item, "mnuPlikKoniec", "&Koniec", MenuState::ready, "Ctrl+Q"},

    {MenuKind::menu, "mnuEdycja", "&Edycja", MenuState::ready},
    {MenuKind::item, "mnuEdycjaTablica", "&Tablica znaków"},
    {MenuKind::separator, "mnuEdycjaLinia3", ""},
    {MenuKind::item, "mnuEdycjaCofnij", "&Cofnij", MenuState::unavailable, "Ctrl+Z"},
    {MenuKind::separator, "mnuEdycjaLinia6", ""},
    {MenuKind::item, "mnuEdycjaWytnij", "&Wytnij", MenuState::unavailable, "Ctrl+X"},
    {MenuKind::item, "mnuEdycjaKopiuj", "&Kopiuj", MenuState::unavailable, "Ctrl+C"},
    {MenuKind::item, "mnuEdycjaWklej", "Wkl&ej", MenuState::unavailable, "Ctrl+V"},
    {MenuKind::item, "mnuEdycjaUsuń", "&Usuń", MenuState::unavailable, "Del"},
    {MenuKind::separator, "mnuEdycjaLnia1", ""},
    {MenuKind::item, "mnuEdycjaZaznaczWszystko", "&Zaznacz wszystko", MenuState::unavailable,
     "Ctrl+A"},
    {MenuKind::separator, "mnuEdycjaLinia7", ""},
    {MenuKind::item, "mnuEdycjaKopiujOdmianę", "Kopiuj całą &odmianę", MenuState::unavailable,
     "Ctrl+Shift+C"},

    {MenuKind::menu, "mnuCzasownik", "&Czasownik", MenuState::ready},
    {MenuKind::item, "mnuEdycjaLista", "&Lista", MenuState::ready, "Ctrl+L"},
    {MenuKind::item, "mnuCzasownikZnajdź", "Znajdź &formę…", MenuState::ready, "Ctrl+F"},
    {MenuKind::item, "mnuCzasownikSkąd", "Skąd &ta forma?", MenuState::ready, "Shift+F1"},
    {MenuKind::separator, "mnuEdycjaLinia4", ""},
    {MenuKind::item, "mnuEdycjaOdmień", "&Odmień", MenuState::ready, "Ctrl+O"},
    {MenuKind::item, "mnuEdycjaNowyCzasownik", "&Nowy", MenuState::ready, "Ctrl+N"},
    {MenuKind::item, "mnuEdycjaEdytujCzasownik", "E&dytuj", MenuState::ready, "F2"},
    {MenuKind::item, "mnuEdycjaUsuńCzasownik", "U&suń", MenuState::ready},
    {MenuKind::item, "mnuCzasownikPrzywróć", "P&rzywróć odmianę programu"},
    {MenuKind::separator, "mnuEdycjaLinia5", ""},
    {MenuKind::item, "mnuCzasownikInformacje", "&Informacje o czasowniku", MenuState::ready,
     "Ctrl+I"},
    {MenuKind::item, "mnuCzasownikBezokolicznik", "Pole &bezokolicznika", MenuState::ready,
     "Ctrl+B"},
    {MenuKind::checkableItem, "mnuCzasownikAutouzupełnianie", "&Autouzupełnianie",
     MenuState::ready},
    {MenuKind::item, "mnuEdycjaWyszukaj", "&Wyszukaj", MenuState::ready},

    {MenuKind::menu, "mnuWidok", "&Widok", MenuState::ready},
    {MenuKind::checkableItem, "mnuWidokNaWierzchu", "&Zawsze na wierzchu", MenuState::ready},
    {MenuKind::item, "mnuWidokKolory", "&Kolory", MenuState::ready},
    {MenuKind::separator, "mnuWidokLinia1", ""},
    {MenuKind::checkableItem, "mnuWidokNorma", "&Formy według dzisiejszej normy", MenuState::ready},

    {MenuKind::menu, "mnuPomoc", "Pomo&c", MenuState::ready},
    {MenuKind::item, "mnuPomocTematy", "&Tematy pomocy", MenuState::ready, "F1"},
    {MenuKind::item, "mnuPomocPoradaDnia", "&Porada dnia", MenuState::ready},
    {MenuKind::item, "mnuPomocJak", "Jak odmienić czasownik?", MenuState::ready},
    {MenuKind::separator, "mnuPomocLinia1", ""},
    {MenuKind::item, "mnuPomocOProgramie", "&O programie...", MenuState::ready},
};

[[nodiscard]] constexpr bool isItem(MenuKind kind) {
  return kind == MenuKind::item || kind == MenuKind::checkableItem;
}

// The name of an item of the tree; any other text does not compile: MenuItemName("mnuPlikKoniec").
class MenuItemName {
 public:
  consteval MenuItemName(const char* name) : name_(name) {
    for (const MenuRow& row : kMainMenu)
      if (row.name == name_ && isItem(row.kind)) return;
    noSuchMenuItem();
  }

  [[nodiscard]] constexpr Utf8View text() const { return name_; }

 private:
  static void noSuchMenuItem();  // not constexpr: reached, it is the error told

  Utf8View name_;
};

}  // namespace odmiennik::app
