// The main window's menu tree, row by row.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace odmiennik::app {

enum class MenuKind : std::uint8_t { menu, item, checkableItem, separator };

// Whether the item's function exists; an item whose function does not is shown disabled.
enum class MenuState : std::uint8_t { ready, unavailable };

// Items and separators belong to the menu above them. "&" marks the access key.
struct MenuRow {
  MenuKind kind;
  std::string_view name;
  std::string_view caption;
  MenuState state = MenuState::unavailable;
  std::string_view keys = {};
};

[[nodiscard]] std::span<const MenuRow> mainMenuRows();

}  // namespace odmiennik::app
