// SPDX-License-Identifier: GPL-3.0-or-later
// What is saved of an edited verb.
#include "app/logic/saving.h"

#include "engine/normalization.h"

namespace odmiennik::app {
namespace {

constexpr std::size_t kShortestInfinitive = 3;

}  // namespace

bool isInfinitive(std::string_view boxText) {
  const std::string_view infinitive = engine::trimmed(boxText);
  if (infinitive.empty() || boxText.size() < kShortestInfinitive) return false;
  return infinitive.back() == 'r' || infinitive.back() == 'e';
}

dictionary::UserVerbRecord recordOfBoxes(std::span<const std::string, engine::kSlotCount> texts,
                                         std::uint8_t auxiliary) {
  dictionary::UserVerbRecord record;
  record.auxiliary = auxiliary;
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const std::string& text = texts[static_cast<std::size_t>(slot)];
    if (text != engine::kShownMissing) record.forms[slot] = text;
  }
  return record;
}

std::optional<int> formWithComma(const dictionary::UserVerbRecord& record) {
  for (int slot = 0; slot < engine::slot::kPastParticiple; ++slot)
    if (record.forms[slot].find(',') != std::string::npos) return slot;
  return std::nullopt;
}

}  // namespace odmiennik::app
