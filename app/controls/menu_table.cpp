// The menu tree, and proof of it while it is compiled.
#include "app/controls/menu_table.h"

namespace odmiennik::app {
namespace {

using enum MenuKind;
using enum MenuState;

// deliberate: the verb commands are named after the menu in which they once stood, and one
// separator is spelled "Lnia"; two menus share the access key C.
constexpr MenuRow kRows[] = {
    {menu, "mnuPlik", "&Plik", ready},
    {item, "mnuPlikZapiszCzasownik", "&Zapisz Czasownik", unavailable, "Ctrl+S"},
    {separator, "mnuPlikLinia1", ""},
    {item, "mnuPlikDrukuj", "&Drukuj", ready, "Ctrl+P"},
    {item, "mnuPlikUstawieniaDrukarki", "&Ustawienia drukarki", ready},
    {separator, "mnuPlikLinia2", ""},
    {item, "mnuPlikKoniec", "&Koniec", ready, "Ctrl+Q"},

    {menu, "mnuEdycja", "&Edycja", ready},
    {item, "mnuEdycjaTablica", "&Tablica znaków"},
    {separator, "mnuEdycjaLinia3", ""},
    {item, "mnuEdycjaCofnij", "&Cofnij", unavailable, "Ctrl+Z"},
    {separator, "mnuEdycjaLinia6", ""},
    {item, "mnuEdycjaWytnij", "&Wytnij", unavailable, "Ctrl+X"},
    {item, "mnuEdycjaKopiuj", "&Kopiuj", unavailable, "Ctrl+C"},
    {item, "mnuEdycjaWklej", "Wkl&ej", unavailable, "Ctrl+V"},
    {item, "mnuEdycjaUsuń", "&Usuń", unavailable, "Del"},
    {separator, "mnuEdycjaLnia1", ""},
    {item, "mnuEdycjaZaznaczWszystko", "&Zaznacz wszystko", unavailable, "Ctrl+A"},

    {menu, "mnuCzasownik", "&Czasownik", ready},
    {item, "mnuEdycjaLista", "&Lista", ready, "Ctrl+L"},
    {separator, "mnuEdycjaLinia4", ""},
    {item, "mnuEdycjaOdmień", "&Odmień", ready, "Ctrl+O"},
    {item, "mnuEdycjaNowyCzasownik", "&Nowy", ready, "Ctrl+N"},
    {item, "mnuEdycjaEdytujCzasownik", "E&dytuj", ready, "F2"},
    {item, "mnuEdycjaUsuńCzasownik", "U&suń", ready},
    {item, "mnuCzasownikPrzywróć", "P&rzywróć odmianę programu"},
    {separator, "mnuEdycjaLinia5", ""},
    {item, "mnuCzasownikInformacje", "&Informacje o czasowniku", ready, "Ctrl+I"},
    {item, "mnuCzasownikBezokolicznik", "Pole &bezokolicznika", ready, "Ctrl+B"},
    {checkableItem, "mnuCzasownikAutouzupełnianie", "&Autouzupełnianie", ready},
    // deliberate: chosen, it does nothing.
    {item, "mnuEdycjaWyszukaj", "&Wyszukaj", ready},

    {menu, "mnuWidok", "&Widok", ready},
    {checkableItem, "mnuWidokNaWierzchu", "&Zawsze na wierzchu", ready},
    {item, "mnuWidokKolory", "&Kolory", ready},

    {menu, "mnuPomoc", "Pomo&c", ready},
    {item, "mnuPomocTematy", "&Tematy pomocy", ready, "F1"},
    {item, "mnuPomocPoradaDnia", "&Porada dnia", ready},
    {item, "mnuPomocJak", "Jak odmienić czasownik?", ready},
    {separator, "mnuPomocLinia1", ""},
    {item, "mnuPomocOProgramie", "&O programie...", ready},
};

constexpr bool everyNameIsUnique() {
  for (const MenuRow& row : kRows)
    for (const MenuRow* other = &row + 1; other != std::end(kRows); ++other)
      if (row.name == other->name) return false;
  return true;
}

// The letter behind "&", or none.
constexpr char accessKey(std::string_view caption) {
  const auto mark = caption.find('&');
  if (mark == std::string_view::npos) return '\0';
  const char letter = caption[mark + 1];
  return letter >= 'a' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

constexpr bool accessKeysAreUniqueInEachMenu() {
  for (const MenuRow& row : kRows)
    for (const MenuRow* other = &row + 1; other != std::end(kRows) && other->kind != menu; ++other)
      if (row.kind != menu && accessKey(row.caption) != '\0' &&
          accessKey(row.caption) == accessKey(other->caption))
        return false;
  return true;
}

static_assert(kRows[0].kind == menu);
static_assert(everyNameIsUnique());
static_assert(accessKeysAreUniqueInEachMenu());

}  // namespace

std::span<const MenuRow> mainMenuRows() { return kRows; }

}  // namespace odmiennik::app
