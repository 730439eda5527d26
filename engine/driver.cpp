// SPDX-License-Identifier: GPL-3.0-or-later
// The driver.
#include "engine/driver.h"

#include "engine/completion.h"
#include "engine/compound_tenses.h"
#include "engine/norm.h"
#include "engine/normalization.h"

namespace odmiennik::engine {
namespace {

constexpr std::string_view kResetWord = "resetuj";

bool isVerbShown(const Conjugation& conjugation, std::string_view typed) {
  std::string asTyped, asShown;
  normalize(typed, asTyped);
  normalize(conjugation.forms[slot::kInfinitive], asShown);
  return conjugation.flags.isConjugationShown && asTyped == asShown;
}

// Of a verb that has both, the auxiliary that the user has chosen is not lost to its record.
void keepAuxiliary(std::uint8_t chosen, Conjugation& conjugation) {
  const bool isFree = conjugation.information.isAuxiliaryFree && !conjugation.flags.isPronominal;
  if (isFree) conjugation.flags.auxiliary = chosen;
}

template <typename Verb>
void completeUnlessEditing(Verb& conjugation, bool isEditing, Maker storedIn) {
  auto&& forms = formsOf(conjugation);
  noteStored(forms, storedIn);
  if (isEditing) return;
  const EngineFlags& flags = conjugation.flags;
  completeStoredVerb(forms, flags.auxiliary, flags.agreement);
}

// Reads slot 96 into the flags; a reflexive prefix makes the verb pronominal.
void readInfinitive(const FormTable& forms, EngineFlags& flags) {
  flags.hAspirate = flags.isPronominal = flags.isImpersonal = flags.isOfThirdPersonOnly = false;
  flags.adverb = Adverb::none;
  flags.agreement = flags.variety == Variety::norm ? Agreement::norm : Agreement::system;
  normalize(forms[slot::kInfinitive], flags.normalizedInput);
}

void takeReflexivePrefix(EngineFlags& flags) {
  const std::string_view bare = withoutReflexivePrefix(flags.normalizedInput);
  flags.isPronominal = bare.size() != flags.normalizedInput.size();
  flags.normalizedInput.erase(0, flags.normalizedInput.size() - bare.size());
}

// "en aller" of s'en aller: the verb is aller.
void takeAdverb(EngineFlags& flags) {
  const std::string_view input = flags.normalizedInput;
  if (input.starts_with("en "))
    flags.adverb = Adverb::en;
  else if (input.starts_with("y "))
    flags.adverb = Adverb::y;
  flags.normalizedInput.erase(0, flags.adverb == Adverb::none ? 0 : input.find(' ') + 1);
}

// What the norm knows of a reflexive verb with its adverb, s'en vouloir; then of the verb alone.
void readReflexiveOfNorm(EngineFlags& flags) {
  if (isParticipleInvariable(flags.normalizedInput)) flags.agreement = Agreement::none;
  takeAdverb(flags);
}

void applyNormTo(EngineFlags& flags, const VerbInformation& information) {
  if (flags.isPronominal) {
    if (isImpersonalReflexive(flags.normalizedInput)) flags.isImpersonal = true;
    if (isParticipleInvariable(flags.normalizedInput)) flags.agreement = Agreement::none;
    return;
  }
  flags.isOfThirdPersonOnly = isOfThirdPersonOnly(flags.normalizedInput);
  if (information.isAuxiliaryFree && isUsuallyWithEtre(flags.normalizedInput))
    flags.auxiliary = kEtre;
}

template <typename Verb>
void agreeParticiple(Verb& conjugation) {
  auto&& forms = formsOf(conjugation);
  const std::string& participle = forms[slot::kPastParticiple];
  if (conjugation.flags.agreement == Agreement::norm)
    replaceParticiple(forms, agreedAlone(participle));
  else if (participle.ends_with(kAgreementMarker))
    shorten(forms, slot::kPastParticiple, kAgreementMarker.size());
}

template <typename Verb>
void toggle(Verb& conjugation, bool isAvoir, bool isEditing) {
  auto&& forms = formsOf(conjugation);
  conjugation.flags.auxiliary = isAvoir ? kAvoir : kEtre;
  if (isEditing) return;
  buildCompoundTenses(forms, conjugation.flags.auxiliary,
                      {.keepsEmptySlots = conjugation.flags.isConjugationShown,
                       .agreement = conjugation.flags.agreement});
  display(forms, conjugation.flags, isEditing, conjugation.shown);
}

}  // namespace

Outcome Driver::conjugate(Conjugation& conjugation, std::string_view typed) {
  return answer(conjugation, typed);
}

Outcome Driver::conjugate(TracedConjugation& conjugation, std::string_view typed) {
  conjugation.trace.clear();
  return answer(conjugation, typed);
}

template <typename Verb>
Outcome Driver::answer(Verb& conjugation, std::string_view typed) {
  conjugation.flags.isConjugationShown = false;
  conjugation.flags.auxiliary = kAvoir;
  conjugation.forms[slot::kInfinitive].assign(typed);
  const Outcome outcome = fill(conjugation, false, std::nullopt);
  if (outcome == Outcome::reset) return outcome;
  show(conjugation, false);
  conjugation.flags.isConjugationShown = true;
  return outcome;
}

Outcome Driver::conjugateForEditing(Conjugation& conjugation, std::string_view typed) {
  std::optional<std::uint8_t> chosen;
  if (isVerbShown(conjugation, typed))
    chosen = conjugation.flags.auxiliary;
  else
    conjugation.flags.auxiliary = kAvoir;
  conjugation.flags.isConjugationShown = false;
  conjugation.forms[slot::kInfinitive].assign(typed);
  const Outcome outcome = fill(conjugation, true, chosen);
  if (outcome == Outcome::reset) return outcome;
  show(conjugation, true);
  conjugation.information.isAuxiliaryFree = true;
  return outcome;
}

void Driver::toggleAuxiliary(Conjugation& conjugation, bool isAvoir, bool isEditing) {
  toggle(conjugation, isAvoir, isEditing);
}

void Driver::toggleAuxiliary(TracedConjugation& conjugation, bool isAvoir, bool isEditing) {
  toggle(conjugation, isAvoir, isEditing);
}

template <typename Verb>
void Driver::show(Verb& conjugation, bool isEditing) {
  auto&& forms = formsOf(conjugation);
  EngineFlags& flags = conjugation.flags;
  if (flags.isPronominal && flags.variety == Variety::norm)
    addReflexivePronounsOfNorm(forms, flags);
  else if (flags.isPronominal)
    addReflexivePronouns(forms, flags.hAspirate);
  display(forms, flags, isEditing, conjugation.shown);
  flags.isPronominal = false;
}

template <typename Verb>
Outcome Driver::fill(Verb& conjugation, bool isEditing, std::optional<std::uint8_t> chosen) {
  EngineFlags& flags = conjugation.flags;
  conjugation.source = Source::none;
  conjugation.model = {};
  conjugation.storedInfinitive.clear();
  flags.variety = isEditing ? Variety::system : conjugation.variety;
  readInfinitive(conjugation.forms, flags);
  if (flags.normalizedInput == kResetWord) {
    ports_.shell.resetSettings();
    return Outcome::reset;
  }
  const std::string infinitive = flags.normalizedInput;
  takeReflexivePrefix(flags);
  const bool isNorm = flags.variety == Variety::norm;
  if (isNorm && flags.isPronominal) readReflexiveOfNorm(flags);
  const std::string_view record = ports_.index.record(flags.normalizedInput);
  applyRecord(record, flags, conjugation.information);
  if (flags.isPronominal) applyPronominal(flags, conjugation.information);
  if (isNorm) applyNormTo(flags, conjugation.information);
  if (chosen) keepAuxiliary(*chosen, conjugation);
  if (loadUserVerb(conjugation, infinitive, isEditing) || loadBuiltinVerb(conjugation, isEditing))
    return Outcome::conjugated;
  return conjugateByRule(conjugation, !record.empty(), isEditing);
}

template <typename Verb>
bool Driver::loadUserVerb(Verb& conjugation, std::string_view infinitive, bool isEditing) {
  EngineFlags& flags = conjugation.flags;
  if (!ports_.userVerbs.load(infinitive, conjugation.forms, flags.storedAux)) return false;
  conjugation.storedInfinitive = conjugation.forms[slot::kInfinitive];
  flags.adverb = Adverb::none;  // as it is stored
  flags.auxiliary = flags.isPronominal ? kEtre : flags.storedAux;
  flags.isImpersonal = flags.isOfThirdPersonOnly = false;
  applyStoredVerb(flags, conjugation.information);
  completeUnlessEditing(conjugation, isEditing, Maker::userRecord);
  conjugation.source = Source::user;
  return true;
}

template <typename Verb>
bool Driver::loadBuiltinVerb(Verb& conjugation, bool isEditing) {
  if (!ports_.builtinVerbs.load(conjugation.flags.normalizedInput, conjugation.forms)) return false;
  completeUnlessEditing(conjugation, isEditing, Maker::builtinTable);
  auto&& forms = formsOf(conjugation);
  if (conjugation.flags.variety == Variety::norm)
    ports_.rules.applyNorm(forms, conjugation.flags.auxiliary, true);
  conjugation.source = Source::builtin;
  return true;
}

template <typename Verb>
Outcome Driver::conjugateByRule(Verb& conjugation, bool isKnown, bool isEditing) {
  auto&& forms = formsOf(conjugation);
  const EngineFlags& flags = conjugation.flags;
  forms.clear();
  noteMaker(forms, Maker::infinitive);
  copy(forms, slot::kInfinitive, flags.normalizedInput);
  const RuleResult result = flags.normalizedInput.ends_with("er")
                                ? ports_.rules.conjugateFirstGroup(forms, flags.auxiliary)
                                : ports_.rules.conjugateByEnding(forms, flags.auxiliary, isEditing);
  if (result.isRefused) {
    ports_.shell.show(Notice::notConjugable);
    return Outcome::refused;
  }
  conjugation.model = result.model;
  conjugation.source = result.model.empty() ? Source::none : Source::rule;
  const bool isNewVerb = isEditing && flags.normalizedInput.empty();
  if (!isKnown && !isNewVerb) ports_.shell.show(Notice::conjugatedRegularly);
  if (flags.variety == Variety::norm) {
    ports_.rules.applyNorm(forms, flags.auxiliary, false);
    agreeParticiple(conjugation);
  }
  buildCompoundTenses(forms, flags.auxiliary, {.agreement = flags.agreement});
  return Outcome::conjugated;
}

}  // namespace odmiennik::engine
