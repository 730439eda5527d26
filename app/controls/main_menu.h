// The menu bar of the main window.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <string_view>

namespace odmiennik::app {

// Fills `bar` from the menu table; menus and items carry their names as object names.
void buildMainMenu(QMenuBar& bar);

// The item of a name; asking for one that does not exist is a fault of the program.
[[nodiscard]] QAction& menuItem(const QMenuBar& bar, std::string_view name);

}  // namespace odmiennik::app
