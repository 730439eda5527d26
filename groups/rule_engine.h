// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the row of a dispatch and carries out the steps of its model on the form table.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "engine/noting.h"
#include "groups/rule_rows.h"

namespace odmiennik::groups {

// Does the steps of `model` in their order; slot 96 holds the infinitive. `group` is the consonant
// group of a model that takes one. Example: open-e with "m" on semer: sème, sèmes … sèmerai.
// `isOfNorm` is said to the trace of a table that has one: the model writes over what is there.
template <typename Forms>
void applyModel(Forms& forms, const Model& model, std::string_view group, std::uint8_t auxiliary,
                bool isOfNorm = false);

// A dispatch made ready for the search: a text's last eight letters are compared as one number.
// Asking each row for the text's end would take 10 % more instructions for an answer.
template <std::size_t Count>
class Dispatch {
 public:
  consteval explicit Dispatch(const EndingRow (&rows)[Count]) : rows_(rows) {
    for (std::size_t i = 0; i < Count; ++i) {
      if (rows[i].ending.size() > kTailLength) throw "an ending has at most eight letters";
      masks_[i] = ~std::uint64_t{0} << (8 * (kTailLength - rows[i].ending.size()));
      endings_[i] = tailOf(rows[i].ending);
    }
  }

  // The first row whose ending the infinitive has, or nullptr.
  [[nodiscard]] constexpr const EndingRow* find(std::string_view infinitive) const {
    const std::uint64_t tail = tailOf(infinitive);
    for (std::size_t i = 0; i < Count; ++i)
      if ((tail & masks_[i]) == endings_[i]) return &rows_[i];
    return nullptr;
  }

 private:
  static constexpr std::size_t kTailLength = 8;

  // The last letters, the last one highest; a shorter text is filled with zeros, which no ending
  // has.
  static constexpr std::uint64_t tailOf(std::string_view text) {
    std::uint64_t tail = 0;
    for (const char letter : text.substr(text.size() - std::min(text.size(), kTailLength)))
      tail = (tail >> 8) | (std::uint64_t{static_cast<unsigned char>(letter)} << 56);
    return tail;
  }

  const EndingRow* rows_;
  std::array<std::uint64_t, Count> masks_{};
  std::array<std::uint64_t, Count> endings_{};
};

// Whether no row stands behind one whose ending is the end of its own, and so can be reached.
[[nodiscard]] consteval bool everyRowCanBeReached(std::span<const EndingRow> rows) {
  for (std::size_t later = 0; later < rows.size(); ++later)
    for (std::size_t earlier = 0; earlier < later; ++earlier)
      if (rows[later].ending.ends_with(rows[earlier].ending)) return false;
  return true;
}

// Whether the order numbers run from 1 to `last` without a gap.
[[nodiscard]] consteval bool isNumberedTo(std::span<const EndingRow> rows, int last) {
  int order = 0;
  for (const EndingRow& row : rows) {
    if (row.order != order && row.order != order + 1) return false;
    order = row.order;
  }
  return order == last;
}

}  // namespace odmiennik::groups
