// SPDX-License-Identifier: GPL-3.0-or-later
// What a spelling rule changes in a stem.
#pragma once

#include <string_view>

#include "explainer/explanation.h"

namespace odmiennik::explainer {

// Tells the change that makes `changed` of the regular stem, before `ending`: (mang, mange, ons) ->
// "e przed o"; (jet, jett, e) -> "podwójne t przed niemą końcówką". Nothing of stems that are
// alike.
void addChange(Remarks& remarks, std::string_view regular, std::string_view changed,
               std::string_view ending);

// Whether what addChange() says leads from the one stem to the other: the last of the letters named
// is the one that changes. Of (encasteler, encastèler) "è zamiast e" would name another e.
[[nodiscard]] bool canBeTold(std::string_view regular, std::string_view changed);

// One run of letters that another one replaces.
struct SpellingChange {
  std::size_t at = 0;     // letters of the stem before it
  std::string_view from;  // what stood there
  std::string_view to;    // what stands there now
};
[[nodiscard]] SpellingChange changeBetween(std::string_view regular, std::string_view changed);

}  // namespace odmiennik::explainer
