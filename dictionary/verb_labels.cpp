// SPDX-License-Identifier: GPL-3.0-or-later
// The wording of a verb's information.
#include "dictionary/verb_labels.h"

#include <cstddef>

namespace odmiennik::dictionary {
namespace {

constexpr std::string_view kGroups[] = {kNoData, "pierwsza", "druga", "trzecia", "ułomny"};
constexpr std::string_view kUses[] = {kNoData, "tak", "nie", "tak, avoir", "tak, être"};
constexpr std::string_view kAuxiliaries[] = {kNoData, "avoir", "être", "avoir lub être"};

template <std::size_t Count, typename Value>
std::string_view textOf(const std::string_view (&texts)[Count], Value value) {
  return texts[static_cast<std::size_t>(value)];
}

}  // namespace

VerbLabels labelsOf(const engine::VerbInformation& information) {
  return {.group = textOf(kGroups, information.group),
          .transitive = textOf(kUses, information.transitive),
          .intransitive = textOf(kUses, information.intransitive),
          .auxiliary = textOf(kAuxiliaries, information.auxiliary)};
}

std::string_view auxiliaryName(std::uint8_t auxiliary) {
  return auxiliary == engine::kAvoir ? "avoir" : "être";
}

std::string_view auxiliaryCaption(std::uint8_t auxiliary) {
  return auxiliary == engine::kAvoir ? "&se conjugué avec avoir" : "&se conjugué avec être";
}

}  // namespace odmiennik::dictionary
