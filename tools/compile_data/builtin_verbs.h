// SPDX-License-Identifier: GPL-3.0-or-later
// The source of the built-in verbs: a block a verb, a line a tense.
#pragma once

#include <string>
#include <vector>

#include "tools/compile_data/tenses.h"

namespace odmiennik::tools {

struct BuiltinVerb {
  std::string infinitive;          // Windows-1252
  std::vector<std::string> forms;  // a slot each, Windows-1252, with "*" and "@"
  bool isAvoir = true;
};

// Reads every block, in order; a missing tense, a wrong number of persons or an infinitive that is
// not the block's own is a fault. The lines "has" and "why" are for people and for a test.
[[nodiscard]] std::vector<BuiltinVerb> readBuiltinVerbs(const std::string& path,
                                                        const TenseTable& tenses);

}  // namespace odmiennik::tools
