// SPDX-License-Identifier: GPL-3.0-or-later
// A tense, as the build reads it from data/tenses.txt.
#pragma once

#include <string_view>

namespace odmiennik::engine {

// A run of slots and its name: "Subjonctif", "passé".
struct Tense {
  int firstSlot;
  int slotCount;
  std::string_view mood;
  std::string_view name;
};

}  // namespace odmiennik::engine
