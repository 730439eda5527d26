// SPDX-License-Identifier: GPL-3.0-or-later
// Proof of the menu tree while the program is compiled; no code comes of it.
#include "app/controls/menu_table.h"

namespace odmiennik::app {
namespace {

using enum MenuKind;

constexpr bool everyNameIsUnique() {
  for (const MenuRow& row : kMainMenu)
    for (const MenuRow* other = &row + 1; other != std::end(kMainMenu); ++other)
      if (row.name == other->name) return false;
  return true;
}

// The letter behind "&", or none.
constexpr char accessKey(Utf8View caption) {
  const auto mark = caption.find('&');
  if (mark == std::string::npos) return '\0';
  const char letter = caption[mark + 1];
  return letter >= 'a' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

constexpr bool accessKeysAreUniqueInEachMenu() {
  for (const MenuRow& row : kMainMenu)
    for (const MenuRow* other = &row + 1; other != std::end(kMainMenu) && other->kind != menu;
         ++other)
      if (row.kind != menu && accessKey(row.caption) != '\0' &&
          accessKey(row.caption) == accessKey(other->caption))
        return false;
  return true;
}

static_assert(kMainMenu[0].kind == menu);
static_assert(everyNameIsUnique());
static_assert(accessKeysAreUniqueInEachMenu());

}  // namespace

}  // namespace odmiennik::app
