// What is known of a verb beside its forms: group, transitivity, auxiliary, and the auxiliary's
// box.
#pragma once

#include <string_view>

#include "engine/flags.h"

namespace odmiennik::engine {

inline constexpr std::string_view kNoData = "b.d.";

// The five value labels, Polish in UTF-8 with the auxiliaries' French infinitives.
struct VerbLabels {
  std::string_view lblGrupaWartość = kNoData;
  std::string_view lblPrzechodniWartość = kNoData;
  std::string_view lblNieprzechodniWartość = kNoData;
  std::string_view lblPosiłkowyWartość = kNoData;
  std::string_view lblRządWartość = kNoData;  // no source fills it
};

// The state of the check box "se conjugué avec avoir".
struct AuxiliaryBox {
  bool isChecked = true;
  bool isEnabled = true;
};

struct VerbInformation {
  VerbLabels labels;
  AuxiliaryBox chkZAvoir;
};

// Sets the auxiliary flag and ticks or clears the box with it.
void setAuxiliary(std::uint8_t auxiliary, EngineFlags& flags, VerbInformation& information);

// "avoir" or "être" as labels show it (UTF-8).
[[nodiscard]] std::string_view auxiliaryName(std::uint8_t auxiliary);

// Applies a record "free|group|transitive|intransitive|auxiliary[|flags]" to labels, box and flags.
// The empty record means that nothing is known: "b.d." everywhere, box enabled. Unknown codes and
// missing fields change nothing. Example: "|1|1|2|1" -> "pierwsza", "tak", "nie", "avoir".
void applyRecord(std::string_view record, EngineFlags& flags, VerbInformation& information);

// A verb conjugated pronominally: neither transitive nor intransitive, with être.
void applyPronominal(EngineFlags& flags, VerbInformation& information);

// A verb of the user's own: nothing is known but its auxiliary, and that may be switched.
void applyStoredVerb(EngineFlags& flags, VerbInformation& information);

}  // namespace odmiennik::engine
