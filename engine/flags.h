// The engine's shared flags: what is known of the verb being conjugated beside its forms.
#pragma once

#include <cstdint>
#include <string>

namespace odmiennik::engine {

// Coding of the auxiliary everywhere: in the flag, in stored records and in the check box.
inline constexpr std::uint8_t kEtre = 0;
inline constexpr std::uint8_t kAvoir = 1;

struct EngineFlags {
  std::uint8_t auxiliary = kAvoir;
  std::uint8_t storedAux = kAvoir;  // as read from a record of the user's own verbs
  bool isPronominal = false;
  bool isImpersonal = false;
  bool hAspirate = false;
  bool isConjugationShown = false;  // false while one is being built
  std::string normalizedInput;      // trimmed, lower-cased, without "se " or "s'"
};

}  // namespace odmiennik::engine
