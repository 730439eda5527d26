// SPDX-License-Identifier: GPL-3.0-or-later
// One conjugation: all that the driver reads and writes.
#pragma once

#include <cstdint>
#include <string>

#include "engine/display.h"
#include "engine/flags.h"
#include "engine/form_table.h"
#include "engine/noting.h"
#include "engine/utf8.h"
#include "engine/verb_information.h"

namespace odmiennik::engine {

// Where the forms come from.
enum class Source : std::uint8_t { none, user, builtin, rule };

// Reused verb after verb for its buffers; not copied, since `shown` holds views of `forms`.
struct Conjugation {
  Conjugation() = default;
  Conjugation(const Conjugation&) = delete;
  Conjugation& operator=(const Conjugation&) = delete;

  Variety variety = Variety::system;  // given before a verb is conjugated
  FormTable forms;
  EngineFlags flags;
  VerbInformation information;
  Display shown;
  Source source = Source::none;
  std::string storedInfinitive;  // slot 96 of the user's record, "" when the verb has none
  Utf8View model;                // the rule that conjugated it, "" for a stored verb
};

// One whose forms are traced: what each of them was made of, asked for by whoever explains it.
struct TracedConjugation : Conjugation {
  Trace trace;
};

// What the forms are written into.
[[nodiscard]] inline FormTable& formsOf(Conjugation& conjugation) { return conjugation.forms; }
[[nodiscard]] inline TracedForms formsOf(TracedConjugation& conjugation) {
  return {conjugation.forms, conjugation.trace};
}

}  // namespace odmiennik::engine
