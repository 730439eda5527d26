// SPDX-License-Identifier: GPL-3.0-or-later
// The wording of what is known of a verb: Polish, with the auxiliaries' French infinitives.
#pragma once

#include "engine/utf8.h"
#include "engine/verb_information.h"

namespace odmiennik::dictionary {

inline constexpr Utf8View kNoData = "b.d.";

struct VerbLabels {
  Utf8View group = kNoData;         // "pierwsza"
  Utf8View transitive = kNoData;    // "tak, avoir"
  Utf8View intransitive = kNoData;  // "nie"
  Utf8View auxiliary = kNoData;     // "avoir lub être"
  Utf8View government = kNoData;    // no source fills it
};

[[nodiscard]] VerbLabels labelsOf(const engine::VerbInformation& information);

// "avoir" or "être".
[[nodiscard]] Utf8View auxiliaryName(std::uint8_t auxiliary);

// The caption of the auxiliary's check box: "&se conjugué avec " and the auxiliary.
[[nodiscard]] Utf8View auxiliaryCaption(std::uint8_t auxiliary);

}  // namespace odmiennik::dictionary
