// The source of the built-in verbs: a block a verb, a line a tense.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/slots.h"

namespace odmiennik::tools {

struct BuiltinVerb {
  std::array<std::string, engine::kSlotCount> forms;  // Windows-1252, with "*" and "@"
  bool isAvoir = true;
};

// Reads every block, in order; a missing tense, a wrong number of persons or an infinitive that is
// not the block's own is a fault. The lines "has" and "why" are for people and for a test.
[[nodiscard]] std::vector<BuiltinVerb> readBuiltinVerbs(const std::string& path);

}  // namespace odmiennik::tools
