// SPDX-License-Identifier: GPL-3.0-or-later
// Where the tenses stand in the text table: which of them side by side, and in how many columns.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "engine/display.h"
#include "formats/slot_choice.h"

namespace odmiennik::formats {

inline constexpr std::size_t kPageWidth = 80;
inline constexpr std::size_t kColumnGap = 2;

// Tenses of one mood (positions in engine::kTenses) that stand side by side.
using Band = std::span<const int>;

// The bands for 1, 2 or 3 columns, in reading order. A compound tense stands below or beside its
// simple one.
[[nodiscard]] std::span<const Band> bandsOf(std::size_t columnCount);

// The tenses of a band that have one of the slots.
[[nodiscard]] std::vector<int> chosenOf(Band band, const SlotChoice& slots);

[[nodiscard]] constexpr std::size_t columnWidth(std::size_t columnCount) {
  return (kPageWidth - (columnCount - 1) * kColumnGap) / columnCount;
}

// One form with its subject pronoun, Windows-1252. Without a form there is no pronoun either.
struct Cell {
  std::string_view pronoun;
  std::string_view form;

  [[nodiscard]] bool isMissing() const { return form.empty(); }
  // "j'" is joined to its form, every other pronoun stands apart.
  [[nodiscard]] bool hasBlank() const { return !pronoun.empty() && !pronoun.ends_with('\''); }
  [[nodiscard]] std::size_t width() const { return pronoun.size() + hasBlank() + form.size(); }
};

[[nodiscard]] Cell cellOf(const engine::Display& shown, int slot);

// What is said above a subjunctive tense ("Il faut que ..."), else nothing; Windows-1252.
[[nodiscard]] std::string_view captionOf(const engine::Display& shown, int tense);

// The most columns, up to 3, in which no form of the slots is cut; 1 when even that cannot be
// helped.
[[nodiscard]] std::size_t columnCountFor(const engine::Display& shown, const SlotChoice& slots);

}  // namespace odmiennik::formats
