// SPDX-License-Identifier: GPL-3.0-or-later
// The driver: takes an infinitive to a filled and displayed form table.
#pragma once

#include <optional>
#include <string_view>

#include "engine/conjugation.h"
#include "engine/ports.h"

namespace odmiennik::engine {

enum class Outcome : std::uint8_t {
  conjugated,
  refused,  // no store and no rule set has the verb; an emptied table was displayed
  reset,    // the word "resetuj": nothing was looked up or displayed
};

// The user's verbs win over the built-in ones, and those over the rules. Holds no state of its own:
// one driver serves any number of conjugations, one at a time.
class Driver {
 public:
  explicit Driver(Ports ports) : ports_(ports) {}

  // The Conjugate command on the text of the entry box (Windows-1252), edit mode already left.
  // Whoever counts conjugations adds one unless the outcome is `reset`.
  Outcome conjugate(Conjugation& conjugation, std::string_view typed);

  // Fills the table as the starting point of editing: "*" stays, empty slots show nothing, no
  // ending is refused. The auxiliary is kept when `typed` is the verb already shown.
  Outcome conjugateForEditing(Conjugation& conjugation, std::string_view typed);

  // The user's click on the auxiliary's check box. Outside editing the compound tenses are rebuilt
  // and displayed; while editing only the flag changes.
  static void toggleAuxiliary(Conjugation& conjugation, bool isAvoir, bool isEditing);

 private:
  // `chosen` is the auxiliary that the user has chosen for the verb that is shown, if it is this
  // one.
  Outcome fill(Conjugation& conjugation, bool isEditing, std::optional<std::uint8_t> chosen);
  // `infinitive` has its reflexive prefix still.
  bool loadUserVerb(Conjugation& conjugation, std::string_view infinitive, bool isEditing);
  bool loadBuiltinVerb(Conjugation& conjugation, bool isEditing);
  Outcome conjugateByRule(Conjugation& conjugation, bool isKnown, bool isEditing);
  void show(Conjugation& conjugation, bool isEditing);

  Ports ports_;
};

}  // namespace odmiennik::engine
