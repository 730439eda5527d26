// SPDX-License-Identifier: GPL-3.0-or-later
// The engine's shared flags: what is known of the verb being conjugated beside its forms.
#pragma once

#include <cstdint>
#include <string>

namespace odmiennik::engine {

// Coding of the auxiliary everywhere: in the flag, in stored records and in the check box.
inline constexpr std::uint8_t kEtre = 0;
inline constexpr std::uint8_t kAvoir = 1;

// Which forms are asked for: the system's own, oddities included, or those of today's norm.
enum class Variety : std::uint8_t { system, norm };

// How the participle behind être is written: as the system does it, as the norm does, or not
// agreed at all.
enum class Agreement : std::uint8_t { system, norm, none };

// What stands between the reflexive pronoun and the verb and belongs to it: s'en aller.
enum class Adverb : std::uint8_t { none, en, y };

struct EngineFlags {
  std::uint8_t auxiliary = kAvoir;
  std::uint8_t storedAux = kAvoir;  // as read from a record of the user's own verbs
  bool isPronominal = false;
  bool isImpersonal = false;
  bool isOfThirdPersonOnly = false;  // il and ils: of the norm only
  bool hAspirate = false;
  bool isConjugationShown = false;  // false while one is being built
  Variety variety = Variety::system;
  Agreement agreement = Agreement::system;
  Adverb adverb =
      Adverb::none;  // of the norm only: the system reads s'en aller as a verb "en aller"
  std::string normalizedInput;  // trimmed, lower-cased, without "se " or "s'"
};

}  // namespace odmiennik::engine
