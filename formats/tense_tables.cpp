// SPDX-License-Identifier: GPL-3.0-or-later
// A conjugation as tables.
#include "formats/tense_tables.h"

#include <algorithm>

namespace odmiennik::formats {
namespace {

bool hasForm(const engine::Display& shown, const SlotChoice& slots, Band tenses, int row) {
  return std::ranges::any_of(tenses, [&](int tense) {
    const int slot = slotOf(tense, row);
    return slots.has(slot) && !cellOf(shown, slot).isMissing();
  });
}

}  // namespace

int slotOf(int tense, int row) { return engine::tenseAt(tense).firstSlot + row; }

Utf8View personOf(const TenseTable& table, int row) {
  return engine::personOf(slotOf(table.tenses.front(), row));
}

std::vector<TenseTable> tenseTablesOf(const engine::Display& shown, const SlotChoice& slots,
                                      std::size_t columnCount) {
  std::vector<TenseTable> tables;
  Utf8View mood;
  for (const Band band : bandsOf(columnCount)) {
    const std::vector<int> tenses = chosenOf(band, slots);
    if (tenses.empty()) continue;
    const engine::Tense& first = engine::tenseAt(tenses.front());
    TenseTable& table = tables.emplace_back();
    if (first.mood != mood) table.mood = mood = first.mood;
    table.tenses = tenses;
    for (int row = 0; row < first.slotCount; ++row)
      if (hasForm(shown, slots, tenses, row)) table.rows.push_back(row);
  }
  return tables;
}

}  // namespace odmiennik::formats
