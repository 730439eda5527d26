// SPDX-License-Identifier: GPL-3.0-or-later
// The compound tenses: auxiliary, blank, past participle.
#pragma once

#include <cstdint>

#include "engine/flags.h"
#include "engine/noting.h"

namespace odmiennik::engine {

struct CompoundOptions {
  bool placeholdersOnly = false;  // rewrite only slots that hold "*"
  bool keepsEmptySlots = false;   // an empty slot stays empty: the conjugation is on the screen
  Agreement agreement = Agreement::system;
};

// Fills the compound slots from the participle in slot 99 (up to its first ";", "/" or ",") and the
// forms of the auxiliary (0 être, 1 avoir). A "*" in slot 24 means placeholdersOnly whatever the
// caller says. Without a participle nothing is written.
// Example: "allé" with être -> slot 27 "sommes allé(e)s".
template <typename Forms>
void buildCompoundTenses(Forms& forms, std::uint8_t auxiliary, CompoundOptions options);

// Whether any compound slot still waits for its form, "*".
[[nodiscard]] bool hasCompoundPlaceholder(const FormTable& forms);

}  // namespace odmiennik::engine
