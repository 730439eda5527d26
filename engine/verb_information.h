// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of a verb beside its forms: group, uses, auxiliary.
#pragma once

#include <cstdint>
#include <string_view>

#include "engine/flags.h"

namespace odmiennik::engine {

enum class Group : std::uint8_t { unknown, first, second, third, defective };

// Whether a verb is used so, transitively or intransitively; some take an auxiliary for the use.
enum class Use : std::uint8_t { unknown, yes, no, withAvoir, withEtre };

enum class KnownAuxiliary : std::uint8_t { unknown, avoir, etre, either };

// How it is worded stands in dictionary/verb_labels.h.
struct VerbInformation {
  Group group = Group::unknown;
  Use transitive = Use::unknown;
  Use intransitive = Use::unknown;
  KnownAuxiliary auxiliary = KnownAuxiliary::unknown;
  bool isAuxiliaryFree = true;  // the user may choose the other one
};

// Applies a record "free|group|transitive|intransitive|auxiliary[|flags]" to information and flags.
// The empty record means that nothing is known, and that the auxiliary is free. Unknown codes and
// missing fields change nothing. Example: "|1|1|2|1" -> first group, transitive, not intransitive,
// avoir.
void applyRecord(std::string_view record, EngineFlags& flags, VerbInformation& information);

// A verb conjugated pronominally: neither transitive nor intransitive, with être. Of "se laver" the
// record of laver is applied first, and its group stays.
void applyPronominal(EngineFlags& flags, VerbInformation& information);

// A verb of the user's own: nothing is known but its auxiliary, and that is free.
void applyStoredVerb(const EngineFlags& flags, VerbInformation& information);

}  // namespace odmiennik::engine
