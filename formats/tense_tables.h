// SPDX-License-Identifier: GPL-3.0-or-later
// A conjugation as tables that stand below each other on a page: tenses in columns, persons in
// rows.
#pragma once

#include <vector>

#include "formats/slot_choice.h"
#include "formats/text_layout.h"

namespace odmiennik::formats {

struct TenseTable {
  Utf8View mood;            // where a mood begins; else empty
  std::vector<int> tenses;  // its columns
  std::vector<int> rows;    // those that any of its tenses has a form in, counted from 0
};

// The tables of the slots of a conjugation in reading order, of up to so many columns. One without
// a form is there, without rows; one without a slot is not.
[[nodiscard]] std::vector<TenseTable> tenseTablesOf(const engine::Display& shown,
                                                    const SlotChoice& slots = {},
                                                    std::size_t columnCount = 3);

// The slot of a cell, and the person of a row ("je", "tu"; nothing where there is none).
[[nodiscard]] int slotOf(int tense, int row);
[[nodiscard]] Utf8View personOf(const TenseTable& table, int row);

}  // namespace odmiennik::formats
