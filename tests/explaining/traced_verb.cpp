// SPDX-License-Identifier: GPL-3.0-or-later
// Verbs conjugated with their trace.
#include "tests/explaining/traced_verb.h"

#include "dictionary/builtin_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/pronouns.h"
#include "groups/rules.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

struct NoUserVerbs final : engine::UserVerbs {
  bool load(std::string_view, engine::FormTable&, std::uint8_t&) override { return false; }
};

struct NoShell final : engine::Shell {
  void show(engine::Notice) override {}
  void resetSettings() override {}
};

std::string withPronoun(const std::string& verb) {
  return (engine::elides(verb, false, engine::Variety::norm) ? "s'" : "se ") + verb;
}

}  // namespace

void forEveryTracedVerb(
    const std::function<void(const std::string&, const engine::TracedConjugation&)>& check) {
  dictionary::GeneralVerbIndex index;
  NoUserVerbs userVerbs;
  dictionary::BuiltinVerbTable builtinVerbs;
  groups::VerbGroups rules;
  NoShell shell;
  engine::Driver driver({index, userVerbs, builtinVerbs, rules, shell});
  engine::TracedConjugation conjugation;
  for (int position = 0; position < dictionary::verbCount(); position += kVerbStep) {
    const std::string verb(dictionary::verbAt(position));
    for (const std::string& typed : {verb, withPronoun(verb)})
      for (const engine::Variety variety : {engine::Variety::system, engine::Variety::norm}) {
        conjugation.variety = variety;
        driver.conjugate(conjugation, typed);
        check(typed, conjugation);
      }
  }
}

std::string placeOf(const std::string& typed, const engine::TracedConjugation& conjugation,
                    int slot) {
  const bool isNorm = conjugation.variety == engine::Variety::norm;
  return utf8(typed) + (isNorm ? " (norm), slot " : ", slot ") + std::to_string(slot);
}

}  // namespace odmiennik::testing
