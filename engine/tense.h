// SPDX-License-Identifier: GPL-3.0-or-later
// A tense, as the build reads it from data/tenses.txt.
#pragma once

#include "engine/utf8.h"

namespace odmiennik::engine {

// A run of slots and its name: "Subjonctif", "passé".
struct Tense {
  int firstSlot;
  int slotCount;
  Utf8View mood;
  Utf8View name;
};

}  // namespace odmiennik::engine
