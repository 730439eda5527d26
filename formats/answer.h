// SPDX-License-Identifier: GPL-3.0-or-later
// What the formats are given.
#pragma once

#include <vector>

#include "engine/conjugation.h"
#include "engine/utf8.h"
#include "formats/slot_choice.h"

namespace odmiennik::formats {

// What is answered to one verb. It points to what is its owner's, and is valid as long as that.
struct Answer {
  Utf8View typed;
  const engine::Conjugation& conjugation;
  const std::vector<Utf8Text>& messages;
  bool isPronominal;
  bool isRefused;           // no conjugation came of it
  SlotChoice printed = {};  // these slots of it; Qt has taken the word for itself
};

}  // namespace odmiennik::formats
