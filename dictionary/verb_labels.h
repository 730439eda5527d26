// SPDX-License-Identifier: GPL-3.0-or-later
// The wording of what is known of a verb, UTF-8: Polish, with the auxiliaries' French infinitives.
#pragma once

#include <string_view>

#include "engine/verb_information.h"

namespace odmiennik::dictionary {

inline constexpr std::string_view kNoData = "b.d.";

struct VerbLabels {
  std::string_view group = kNoData;         // "pierwsza"
  std::string_view transitive = kNoData;    // "tak, avoir"
  std::string_view intransitive = kNoData;  // "nie"
  std::string_view auxiliary = kNoData;     // "avoir lub être"
  std::string_view government = kNoData;    // no source fills it
};

[[nodiscard]] VerbLabels labelsOf(const engine::VerbInformation& information);

// "avoir" or "être".
[[nodiscard]] std::string_view auxiliaryName(std::uint8_t auxiliary);

// The caption of the auxiliary's check box: "&se conjugué avec " and the auxiliary.
[[nodiscard]] std::string_view auxiliaryCaption(std::uint8_t auxiliary);

}  // namespace odmiennik::dictionary
