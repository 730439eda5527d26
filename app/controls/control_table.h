// The main window's table of controls, and how its rows are found.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "data/main_window.h"

namespace odmiennik::app {

// All controls of the main window in tab order; row 0 is the window itself.
[[nodiscard]] constexpr std::span<const ControlRow> mainWindowRows() { return kMainWindow; }

// The row of a control; a control that is not in the table does not compile:
// positionOf("txtCzasownik", 96).
[[nodiscard]] consteval std::size_t positionOf(std::string_view name, int index = -1) {
  for (std::size_t position = 0; position < mainWindowRows().size(); ++position)
    if (kMainWindow[position].name == name && kMainWindow[position].index == index) return position;
  throw "no such control";
}

// How many controls have the name: countOf("txtCzasownik") -> 101.
[[nodiscard]] constexpr int countOf(std::string_view name) {
  int count = 0;
  for (const ControlRow& row : mainWindowRows()) count += row.name == name ? 1 : 0;
  return count;
}

}  // namespace odmiennik::app
