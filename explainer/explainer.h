// SPDX-License-Identifier: GPL-3.0-or-later
// How the forms of a verb came to be: the verb is conjugated with its trace, in both varieties.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "dictionary/builtin_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/driver.h"
#include "explainer/explanation.h"
#include "groups/rules.h"

namespace odmiennik::explainer {

// What is explained, and how it is shown.
struct Asked {
  std::string_view infinitive;  // Windows-1252
  engine::Variety variety = engine::Variety::system;
  std::optional<std::uint8_t> auxiliary;  // chosen by the user where the verb has both
};

// Explains one verb after another. It shows no message and changes nothing; `userVerbs` outlives
// it.
class Explainer {
 public:
  explicit Explainer(engine::UserVerbs& userVerbs);

  // Conjugates the verb; says whether a conjugation came of it. "resetuj" is a verb here like any
  // other that there is not.
  bool take(const Asked& asked);

  // How the form of the slot came to be, of the verb taken last; where today's norm has another
  // one, that too. Example: slot 3 of manger: "reguła -ger (wzór: manger)", "temat mang-", "e przed
  // o", "końcówka -ons".
  [[nodiscard]] Explanation explain(int slot) const;

  // The same without where it comes from, which is the same for every form of the verb.
  [[nodiscard]] Explanation explainComposition(int slot) const;

  // Where the verb comes from: file, table, or rule.
  [[nodiscard]] Remarks source() const;

  // The verb as it is conjugated in the variety that was asked for.
  [[nodiscard]] const engine::TracedConjugation& conjugation() const { return conjugation_; }

 private:
  struct SilentShell final : engine::Shell {
    void show(engine::Notice /*notice*/) override {}
    void resetSettings() override {}
  };

  bool conjugate(const Asked& asked, engine::Variety variety,
                 engine::TracedConjugation& conjugation);

  dictionary::GeneralVerbIndex index_;
  dictionary::BuiltinVerbTable builtinVerbs_;
  groups::VerbGroups rules_;
  SilentShell shell_;
  engine::Driver driver_;
  engine::TracedConjugation conjugation_;
  engine::TracedConjugation norm_;  // of the verb in the norm, unless that was asked for
};

}  // namespace odmiennik::explainer
