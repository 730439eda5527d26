// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the menu, an item a row.
#include "app/menu_commands.h"

#include <algorithm>

#include "app/controls/main_menu.h"
#include "app/editing/editing.h"
#include "app/explaining/explain_menu.h"
#include "app/exporting/exporting.h"
#include "app/finding/find_menu.h"
#include "app/help/help_commands.h"
#include "app/list/list_menu.h"
#include "app/main_window/main_window.h"
#include "app/platform/platform.h"
#include "app/printing/printing.h"
#include "app/tips/tip_of_the_day.h"
#include "app/typing/typing.h"
#include "app/view/view_menu.h"

namespace odmiennik::app {
namespace {

// A command that may open a box waits for the event loop: whoever gave it (a screen reader, the
// menu) is answered before the box waits.
enum class Runs : std::uint8_t { later, atOnce };

struct Command {
  MenuItemName item;
  Runs runs;
  void (*run)(const CommandParts& parts, bool isChecked);
};

using Parts = const CommandParts&;

constexpr Command kCommands[] = {
    {"mnuPlikZapiszCzasownik", Runs::later, [](Parts parts, bool) { parts.editing.save(); }},
    {"mnuPlikZapiszOdmianę", Runs::later, [](Parts parts, bool) { parts.exporting.save(); }},
    {"mnuPlikDrukuj", Runs::later, [](Parts parts, bool) { parts.printing.print(); }},
    {"mnuPlikUstawieniaDrukarki", Runs::later, [](Parts parts, bool) { parts.printing.setUp(); }},
    {"mnuPlikKoniec", Runs::later, [](Parts parts, bool) { parts.window.close(); }},

    {"mnuEdycjaTablica", Runs::atOnce,
     [](Parts, bool) { platform::start(platform::characterMap()); }},
    {"mnuEdycjaKopiujOdmianę", Runs::later, [](Parts parts, bool) { parts.exporting.copy(); }},

    {"mnuEdycjaLista", Runs::later, [](Parts parts, bool) { parts.list.open(ListPurpose::list); }},
    {"mnuCzasownikZnajdź", Runs::later, [](Parts parts, bool) { parts.find.open(); }},
    {"mnuCzasownikSkąd", Runs::later,
     [](Parts parts, bool) { parts.explain.open(parts.typing.current().index()); }},
    {"mnuEdycjaOdmień", Runs::later, [](Parts parts, bool) { parts.editing.conjugate(); }},
    {"mnuEdycjaNowyCzasownik", Runs::later, [](Parts parts, bool) { parts.editing.newVerb(); }},
    {"mnuEdycjaEdytujCzasownik", Runs::atOnce,
     [](Parts parts, bool) { parts.editing.enterOrLeaveLater(); }},
    {"mnuEdycjaUsuńCzasownik", Runs::later,
     [](Parts parts, bool) { parts.list.open(ListPurpose::deletion); }},
    {"mnuCzasownikPrzywróć", Runs::later, [](Parts parts, bool) { parts.editing.restore(); }},
    {"mnuCzasownikInformacje", Runs::atOnce,
     [](Parts parts, bool) { parts.window.tellInformation(); }},
    {"mnuCzasownikBezokolicznik", Runs::atOnce,
     [](Parts parts, bool) { parts.window.goToEntry(); }},
    {"mnuCzasownikAutouzupełnianie", Runs::atOnce,
     [](Parts parts, bool) { parts.typing.invertCompletion(); }},
    // deliberate: chosen, it does nothing.
    {"mnuEdycjaWyszukaj", Runs::atOnce, [](Parts, bool) {}},

    {"mnuWidokNaWierzchu", Runs::later,
     [](Parts parts, bool isChecked) { parts.view.setOnTop(isChecked); }},
    {"mnuWidokKolory", Runs::later, [](Parts parts, bool) { parts.view.showColours(); }},
    {"mnuWidokNorma", Runs::atOnce,
     [](Parts parts, bool isChecked) { parts.view.showNorm(isChecked); }},

    {"mnuPomocTematy", Runs::later, [](Parts parts, bool) { parts.help.open(); }},
    {"mnuPomocPoradaDnia", Runs::later, [](Parts parts, bool) { parts.tips.show(); }},
    {"mnuPomocJak", Runs::later, [](Parts parts, bool) { parts.tips.showHowTo(); }},
    {"mnuPomocOProgramie", Runs::later, [](Parts parts, bool) { parts.help.showAbout(); }},
};

// Those that work on the box with the focus have a table of their own.
consteval bool everyItemHasOneCommand() {
  return std::ranges::all_of(kMainMenu, [](const MenuRow& row) {
    const auto isOfRow = [&row](const auto& command) { return command.item.text() == row.name; };
    const auto commands =
        std::ranges::count_if(kCommands, isOfRow) + std::ranges::count_if(kEditCommands, isOfRow);
    return commands == (isItem(row.kind) ? 1 : 0);
  });
}
static_assert(everyItemHasOneCommand());

}  // namespace

void connectMenuCommands(const CommandParts& parts) {
  for (const Command& command : kCommands)
    QObject::connect(
        &menuItem(*parts.window.menuBar(), command.item), &QAction::triggered, &parts.window,
        [parts, run = command.run](bool isChecked) { run(parts, isChecked); },
        command.runs == Runs::later ? Qt::QueuedConnection : Qt::DirectConnection);
}

}  // namespace odmiennik::app
