// SPDX-License-Identifier: GPL-3.0-or-later
// Verbs conjugated with their trace, as in the program of a user who has no verbs of his own.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "engine/driver.h"

namespace odmiennik::testing {

// The sanitizers make tracing twenty times slower; what they watch for shows in a part of the verbs.
#ifdef __SANITIZE_ADDRESS__
inline constexpr int kVerbStep = 23;
#else
inline constexpr int kVerbStep = 1;
#endif

// Calls `check` with every kVerbStep-th verb of the index in both varieties, bare and with its
// reflexive pronoun.
void forEveryTracedVerb(
    const std::function<void(const std::string& typed, const engine::TracedConjugation&)>& check);

// "parler (norm), slot 3"
[[nodiscard]] std::string placeOf(const std::string& typed,
                                  const engine::TracedConjugation& conjugation, int slot);

}  // namespace odmiennik::testing
