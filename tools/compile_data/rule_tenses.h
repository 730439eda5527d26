// SPDX-License-Identifier: GPL-3.0-or-later
// The tenses that the rules write, each with its builder.
#pragma once

#include <string>
#include <vector>

#include "groups/rule_rows.h"
#include "tools/compile_data/tenses.h"

namespace odmiennik::tools {

// A tense that a line of a model may name: where its forms go, which builder makes it, and what
// that builder can be told.
struct RuleTense {
  Utf8Text name;
  int firstSlot = 0;
  int formCount = 0;
  groups::Action builder{};
  bool needsBase = false;     // a builder that starts from nothing would write bare endings
  bool takesEndings = false;  // "i-endings"
};

using RuleTenses = std::vector<RuleTense>;

[[nodiscard]] RuleTenses ruleTenses(const TenseTable& tenses);

}  // namespace odmiennik::tools
