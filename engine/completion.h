// SPDX-License-Identifier: GPL-3.0-or-later
// Completion of a stored verb: every "*" becomes the form that the rules derive.
#pragma once

#include <cstdint>

#include "engine/flags.h"
#include "engine/noting.h"

namespace odmiennik::engine {

// Completes `forms` in the one order that works: the subjunctive needs the imperfect, the
// conditional the future, the imperfect subjunctive the passé simple. Only the first slot of a
// tense is looked at: the tense is completed wholly or not at all. A "*" without anything to derive
// it from (no participle, no base) stays. `Forms` is FormTable or TracedForms.
template <typename Forms>
void completeStoredVerb(Forms& forms, std::uint8_t auxiliary,
                        Agreement agreement = Agreement::system);

}  // namespace odmiennik::engine
