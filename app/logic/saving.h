// SPDX-License-Identifier: GPL-3.0-or-later
// What is saved of an edited verb, and which infinitives may be saved at all.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "dictionary/user_record.h"
#include "engine/slots.h"

namespace odmiennik::app {

// Whether the text of the infinitive's box (Windows-1252, as typed) may be saved: "aimer", " faire
// ". deliberate: nothing is looked at but the last letter (r or e) behind which only blanks stand,
// and the length of the text with its blanks (3 or more): " e " may be saved, "ab" and "chanté" may
// not.
[[nodiscard]] bool isInfinitive(std::string_view boxText);

// The record of the 101 boxes' texts. A form that does not exist (" -- ") is saved as an empty one;
// the boxes themselves are left alone, so that a write that fails has changed nothing.
[[nodiscard]] dictionary::UserVerbRecord recordOfBoxes(
    std::span<const std::string, engine::kSlotCount> texts, std::uint8_t auxiliary);

// The slot of the first form that holds a comma, with which the form would come back split and
// those behind it one slot further. deliberate: not asked of slots 99 and 100, where the program
// itself shows "dû, due".
[[nodiscard]] std::optional<int> formWithComma(const dictionary::UserVerbRecord& record);

}  // namespace odmiennik::app
