// SPDX-License-Identifier: GPL-3.0-or-later
// The numbered string table: read-only texts addressed by a numeric identifier.
#pragma once

#include <string_view>

#include "engine/string_table_data.h"

namespace odmiennik::engine {

// First identifiers of the ranges; the forms of an auxiliary are 44 entries, those of a built-in
// verb 102.
namespace text_id {
inline constexpr int kReflexive = 1;
inline constexpr int kElidedReflexive = 7;
inline constexpr int kEnclitic = 13;
inline constexpr int kSubjunctiveCaption = 20;
inline constexpr int kFalloirCaption = 24;
inline constexpr int kTipCount = 40;
inline constexpr int kAuxiliary = 1000;
inline constexpr int kBuiltinCount = 3000;
inline constexpr int kBuiltinForms = 4000;
inline constexpr int kEntriesPerBuiltin = 102;
inline constexpr int kLast = 12567;
}  // namespace text_id

// The text of `identifier`, or the empty text when the table has none under it. Entries 40 to 61
// are UTF-8, all others Windows-1252: textOf(1042) -> "être".
[[nodiscard]] inline std::string_view textOf(int identifier) {
  if (identifier < 0 || identifier > text_id::kLast) return {};
  const std::uint32_t* offset = &data::kStringOffsets[identifier];
  return {data::kStringBytes + offset[0], offset[1] - offset[0]};
}

// The compact order of an auxiliary's simple forms.
namespace auxiliary_index {
inline constexpr int kPresent = 0;
inline constexpr int kImperfect = 6;
inline constexpr int kPastHistoric = 12;
inline constexpr int kFuture = 18;
inline constexpr int kPresentSubjunctive = 24;
inline constexpr int kImperfectSubjunctive = 30;
inline constexpr int kPresentConditional = 36;
inline constexpr int kInfinitive = 42;
inline constexpr int kPresentParticiple = 43;
}  // namespace auxiliary_index
inline constexpr int kAuxiliaryFormCount = 44;

// Form `index` (0 to 43) of the auxiliary: auxiliaryForm(0, 42) -> "être".
[[nodiscard]] inline std::string_view auxiliaryForm(int auxiliary, int index) {
  return textOf((auxiliary + 1) * text_id::kAuxiliary + index);
}

}  // namespace odmiennik::engine
