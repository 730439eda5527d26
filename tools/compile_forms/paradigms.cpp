// SPDX-License-Identifier: GPL-3.0-or-later
// Paradigms taken from the engine.
#include "tools/compile_forms/paradigms.h"

#include <algorithm>
#include <stdexcept>

#include "dictionary/builtin_verbs.h"
#include "dictionary/verb_index.h"
#include "engine/driver.h"
#include "engine/windows1252.h"
#include "finder/bare_forms.h"
#include "groups/rules.h"

namespace odmiennik::tools {
namespace {

using engine::Variety;
using finder::BareForm;
using finder::data::PlacesOfForm;

class NoUserVerbs final : public engine::UserVerbs {
 public:
  [[nodiscard]] bool load(std::string_view, engine::FormTable&, std::uint8_t&) override {
    return false;
  }
};

class SilentShell final : public engine::Shell {
 public:
  void show(engine::Notice) override {}
  void resetSettings() override {}
};

// The engine as it is when the user has no verbs of his own.
class Conjugator {
 public:
  const engine::Conjugation& conjugate(std::string_view infinitive, Variety variety) {
    conjugation_.variety = variety;
    if (driver_.conjugate(conjugation_, infinitive) != engine::Outcome::conjugated)
      throw std::runtime_error(std::string(bytesOf(engine::toUtf8(infinitive))) +
                               ": cannot be conjugated");
    return conjugation_;
  }

 private:
  dictionary::GeneralVerbIndex index_;
  NoUserVerbs userVerbs_;
  dictionary::BuiltinVerbTable builtinVerbs_;
  groups::VerbGroups rules_;
  SilentShell shell_;
  engine::Driver driver_{{index_, userVerbs_, builtinVerbs_, rules_, shell_}};
  engine::Conjugation conjugation_;
};

// The forms of one verb in both varieties, and what is known of it.
struct VerbForms {
  SourceEndings forms;
  finder::data::Paradigm facts{};
};

// Whether something can be done to somebody, or the participle stands behind être.
bool agrees(const engine::Conjugation& conjugation) {
  const engine::Use use = conjugation.information.transitive;
  return use == engine::Use::yes || use == engine::Use::withAvoir || use == engine::Use::withEtre ||
         conjugation.information.isAuxiliaryFree || conjugation.flags.auxiliary == engine::kEtre;
}

void noteFacts(const engine::Conjugation& conjugation, finder::data::Paradigm& facts) {
  const bool isFree = conjugation.information.isAuxiliaryFree && !conjugation.shown.isPronominal;
  const bool isAvoir = conjugation.flags.auxiliary == engine::kAvoir;
  facts.takesAvoir = facts.takesAvoir || isFree || isAvoir;
  facts.takesEtre = facts.takesEtre || isFree || !isAvoir;
  facts.isPronominal = facts.isPronominal || conjugation.shown.isPronominal;
  facts.agrees = facts.agrees || agrees(conjugation);
}

VerbForms formsOf(Conjugator& conjugator, finder::BareForms& bare, std::string_view infinitive) {
  VerbForms verb;
  const engine::Conjugation& system = conjugator.conjugate(infinitive, Variety::system);
  bare.read(system);
  noteFacts(system, verb.facts);
  verb.facts.system = bare.compound();
  for (const BareForm& form : bare.all()) verb.forms[form.text].system = form.places;
  const engine::Conjugation& norm = conjugator.conjugate(infinitive, Variety::norm);
  bare.read(norm);
  noteFacts(norm, verb.facts);
  verb.facts.norm = bare.compound();
  for (const BareForm& form : bare.all()) verb.forms[form.text].norm = form.places;
  return verb;
}

// What all forms of a verb begin with, the infinitive among them.
std::size_t stemSizeOf(const SourceEndings& forms, std::string_view infinitive) {
  std::size_t size = infinitive.size();
  for (const auto& [form, places] : forms) {
    const auto differ = std::ranges::mismatch(infinitive.substr(0, size), form);
    size = static_cast<std::size_t>(differ.in1 - infinitive.begin());
  }
  return size;
}

// Everything by which paradigms differ, in an order.
auto keyOf(const SourceParadigm& paradigm) {
  std::vector<std::tuple<std::string, finder::Places, finder::Places>> endings;
  for (const auto& [ending, places] : paradigm.endings)
    endings.emplace_back(ending, places.system, places.norm);
  const finder::data::Paradigm& facts = paradigm.facts;
  return std::tuple(endings, facts.system, facts.norm, facts.takesAvoir, facts.takesEtre,
                    facts.isPronominal, facts.agrees);
}

}  // namespace

SourceForms paradigmsOfIndex() {
  SourceForms source;
  Conjugator conjugator;
  finder::BareForms bare;
  std::map<decltype(keyOf({})), std::uint32_t> known;
  for (int position = 0; position < dictionary::verbCount(); ++position) {
    const std::string_view infinitive = dictionary::verbAt(position);
    const VerbForms verb = formsOf(conjugator, bare, infinitive);
    const std::size_t stemSize = stemSizeOf(verb.forms, infinitive);
    SourceParadigm paradigm{.facts = verb.facts};
    for (const auto& [form, places] : verb.forms) paradigm.endings[form.substr(stemSize)] = places;
    const auto number = static_cast<std::uint32_t>(source.paradigms.size());
    const auto [entry, isNew] = known.try_emplace(keyOf(paradigm), number);
    if (isNew) source.paradigms.push_back(std::move(paradigm));
    source.verbs.push_back({std::string(infinitive), stemSize, entry->second});
  }
  return source;
}

}  // namespace odmiennik::tools
