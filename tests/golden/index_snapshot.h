// SPDX-License-Identifier: GPL-3.0-or-later
// The compact form in which the conjugation of the whole verb index is kept as a golden file.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "engine/slots.h"

namespace odmiennik::testing {

// A verb as it was conjugated; all texts are Windows-1252.
struct VerbSnapshot {
  std::string infinitive;  // as the index has it
  std::string origin;      // "rule -cer", "builtin"
  bool elidesJe = false;   // "j'" in front of box 0
  std::array<std::string, engine::kSlotCount> boxes;
};

// Verbs whose forms differ only in their stem share a pattern: "~" stands for the stem in the
// simple tenses, "+" for the participle in the compound ones. A pattern is named after its first
// verb.
struct Pattern {
  std::string origin;  // of simple patterns only
  std::array<std::string, engine::kSlotCount> forms;

  [[nodiscard]] bool operator<(const Pattern& other) const {
    return std::tie(origin, forms) < std::tie(other.origin, other.forms);
  }
};

struct VerbLine {
  std::string infinitive;
  std::size_t stemLength = 0;
  std::string simplePattern;
  std::string compoundPattern;
  bool elidesJe = false;
};

struct IndexSnapshot {
  std::map<std::string, Pattern> simplePatterns;
  std::map<std::string, Pattern> compoundPatterns;
  std::vector<VerbLine> verbs;  // in the index's order
};

// Builds the snapshot of verbs in their order.
[[nodiscard]] IndexSnapshot encode(const std::vector<VerbSnapshot>& verbs);

// The verb that a line stands for; throws when it names a pattern that is not there.
[[nodiscard]] VerbSnapshot decode(const VerbLine& line, const IndexSnapshot& snapshot);

// The two files, UTF-8, and back; reading throws at a line that it does not understand.
[[nodiscard]] std::string patternsFile(const IndexSnapshot& snapshot);
[[nodiscard]] std::string verbsFile(const IndexSnapshot& snapshot);
[[nodiscard]] IndexSnapshot readFiles(std::string_view patterns, std::string_view verbs);

}  // namespace odmiennik::testing
