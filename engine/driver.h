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

  // The same, and notes how every form comes to be.
  Outcome conjugate(TracedConjugation& conjugation, std::string_view typed);

  // Fills the table as the starting point of editing: "*" stays, empty slots show nothing, no
  // ending is refused. The auxiliary is kept when `typed` is the verb already shown.
  Outcome conjugateForEditing(Conjugation& conjugation, std::string_view typed);

  // The user's click on the auxiliary's check box. Outside editing the compound tenses are rebuilt
  // and displayed; while editing only the flag changes.
  static void toggleAuxiliary(Conjugation& conjugation, bool isAvoir, bool isEditing);
  static void toggleAuxiliary(TracedConjugation& conjugation, bool isAvoir, bool isEditing);

 private:
  // `Verb` is a Conjugation, or a traced one.
  template <typename Verb>
  Outcome answer(Verb& conjugation, std::string_view typed);
  // `chosen` is the auxiliary that the user has chosen for the verb that is shown, if it is this
  // one.
  template <typename Verb>
  Outcome fill(Verb& conjugation, bool isEditing, std::optional<std::uint8_t> chosen);
  // `infinitive` has its reflexive prefix still.
  template <typename Verb>
  bool loadUserVerb(Verb& conjugation, std::string_view infinitive, bool isEditing);
  template <typename Verb>
  bool loadBuiltinVerb(Verb& conjugation, bool isEditing);
  template <typename Verb>
  Outcome conjugateByRule(Verb& conjugation, bool isKnown, bool isEditing);
  template <typename Verb>
  void show(Verb& conjugation, bool isEditing);

  Ports ports_;
};

}  // namespace odmiennik::engine
