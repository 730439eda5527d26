// SPDX-License-Identifier: GPL-3.0-or-later
// The wording of a verb's information.
#include "dictionary/verb_labels.h"

#include <cstddef>

namespace odmiennik::dictionary {
namespace {

constexpr Utf8View kGroups[] = {kNoData, "pierwsza", "druga", "trzecia", "ułomny"};
constexpr Utf8View kUses[] = {kNoData, "tak", "nie", "tak, avoir", "tak, être"};
constexpr Utf8View kAuxiliaries[] = {kNoData, "avoir", "être", "avoir lub être"};

template <std::size_t Count, typename Value>
Utf8View textOf(const Utf8View (&texts)[Count], Value value) {
  return texts[static_cast<std::size_t>(value)];
}

}  // namespace

VerbLabels labelsOf(const engine::VerbInformation& information) {
  return {.group = textOf(kGroups, information.group),
          .transitive = textOf(kUses, information.transitive),
          .intransitive = textOf(kUses, information.intransitive),
          .auxiliary = textOf(kAuxiliaries, information.auxiliary)};
}

Utf8View auxiliaryName(std::uint8_t auxiliary) {
  return auxiliary == engine::kAvoir ? "avoir" : "être";
}

Utf8View auxiliaryCaption(std::uint8_t auxiliary) {
  return auxiliary == engine::kAvoir ? "&se conjugué avec avoir" : "&se conjugué avec être";
}

}  // namespace odmiennik::dictionary
