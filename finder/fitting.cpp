// SPDX-License-Identifier: GPL-3.0-or-later
// Which places of a word fit a phrase.
#include "finder/fitting.h"

#include <array>
#include <bit>
#include <span>

#include "engine/french.h"
#include "engine/norm.h"

namespace odmiennik::finder {
namespace {

using engine::operator""_fr;
namespace slot = engine::slot;

constexpr std::string_view kEtreInfinitive = "être"_fr;
constexpr std::string_view kAvoirInfinitive = "avoir"_fr;

constexpr bool isPersonal(int number) { return number < engine::kPersonalSlotCount; }
constexpr bool isImperative(int number) {
  return number >= slot::kImperative && number < slot::kInfinitive;
}
constexpr bool isSubjunctive(int number) {
  return number >= slot::kPresentSubjunctive && number < slot::kPresentConditional;
}

// The person of a slot as a bit; the imperative has tu, nous and vous.
constexpr Persons personOf(int number) {
  if (isPersonal(number)) return static_cast<Persons>(1 << number % engine::kPersonCount);
  if (!isImperative(number)) return kAnyPerson;
  constexpr Persons kOfImperative[] = {2, 8, 16};
  return kOfImperative[number % 3];
}
static_assert(slot::kImperative % 3 == 0 && slot::kPastImperative % 3 == 0);

// Calls `take` with every place of the bits.
template <typename Take>
void forEachPlace(Places places, Take take) {
  for (; places != 0; places &= places - 1) take(std::countr_zero(places));
}

// The compound slots that a simple slot of the auxiliary opens, as runs beside each other.
struct CompoundRun {
  int simple, count, compound;
};
constexpr CompoundRun kCompoundRuns[] = {
    {slot::kPresent, 6, slot::kPerfect},
    {slot::kImperfect, 6, slot::kPluperfect},
    {slot::kPastHistoric, 6, slot::kPastAnterior},
    {slot::kFuture, 6, slot::kFuturePerfect},
    {slot::kPresentSubjunctive, 6, slot::kPerfectSubjunctive},
    {slot::kImperfectSubjunctive, 6, slot::kPluperfectSubjunctive},
    {slot::kPresentConditional, 6, slot::kPastConditional1},
    {slot::kImperfectSubjunctive, 6, slot::kPastConditional2},
    {slot::kImperative, 3, slot::kPastImperative},
    {slot::kInfinitive, 1, slot::kPastInfinitive},
    {slot::kPresentParticiple, 1, slot::kCompoundParticiple}};

// Whether what stands around the form allows this slot.
bool fits(const Phrase& phrase, int number) {
  if ((personOf(number) & phrase.persons) == 0) return false;
  if (isImperative(number))
    return !phrase.hasSubject && !phrase.isSubordinate && phrase.isReflexive == phrase.isImperative;
  if (phrase.isImperative) return false;
  if (isPersonal(number)) return !phrase.isSubordinate || isSubjunctive(number);
  const bool isBareParticiple = number == slot::kPastParticiple;
  return !phrase.hasSubject && !phrase.isSubordinate && !(isBareParticiple && phrase.isReflexive);
}

// s'agir has il alone in the norm; the system gives it every person.
bool isInNormOf(const Reading& reading) {
  if (!reading.isReflexive || !engine::isImpersonalReflexive(reading.verb)) return true;
  return !isImperative(reading.slot) && (personOf(reading.slot) & 4) != 0;
}

// Of a verb that is pronominal alone, every form is.
bool isReflexive(const Phrase& phrase, const Candidate& word) {
  return phrase.isReflexive || word.facts.isPronominal;
}

// A reading at the end of the others, which finish() lets stand or takes back.
Reading& begin(const Phrase& phrase, const Candidate& word, int number, Readings& readings) {
  Reading& reading = readings.emplace_back();
  reading.verb = word.verb;
  reading.slot = static_cast<std::int16_t>(number);
  reading.isReflexive = isReflexive(phrase, word);
  reading.isOwn = word.isOwn;
  reading.adverb = phrase.adverb;
  reading.rank = word.rank;
  reading.match = word.match;
  return reading;
}

// The system reads "s'en aller" as a verb "en aller": only the norm knows it.
void finish(bool isInSystem, bool isInNorm, Readings& readings) {
  Reading& reading = readings.back();
  reading.isInSystem = isInSystem && reading.adverb == engine::Adverb::none;
  reading.isInNorm = isInNorm && isInNormOf(reading);
  if (!reading.isInSystem && !reading.isInNorm) readings.pop_back();
}

constexpr bool isPlural(Agreed agreed) {
  return agreed == Agreed::masculines || agreed == Agreed::feminines;
}

// Whether the system writes the participle so: it agrees with être alone, in the plural behind
// nous, vous and ils alone.
bool isAgreedInSystem(int number, Agreed agreed, bool isEtre) {
  if (!isEtre) return agreed == Agreed::masculine;
  const bool isOfSeveral = isPersonal(number) && number % engine::kPersonCount >= 3;
  return isPlural(agreed) == isOfSeveral;
}

// Whether French can: vous may be one person, a reflexive pronoun an indirect object.
bool isAgreedInNorm(const Reading& reading, bool isEtre) {
  if (reading.isReflexive && reading.agreed == Agreed::masculine) return true;
  if (reading.isReflexive && engine::isParticipleInvariable(reading.verb)) return false;
  if (!isEtre || !isPersonal(reading.slot)) return true;
  const int person = reading.slot % engine::kPersonCount;
  return person == 4 || isPlural(reading.agreed) == (person >= 3);
}

// The auxiliary's places in one variety and the participle's, tried together.
struct CompoundForm {
  const Phrase& phrase;
  const Candidate& auxiliary;
  const Candidate& participle;
  bool isEtre;
};

bool has(Places places, int place) { return (places & bitOf(place)) != 0; }

void appendAt(const CompoundForm& compound, int auxiliaryPlace, int number, int participlePlace,
              Readings& readings) {
  const Candidate& word = compound.participle;
  const bool mayBeReflexive = compound.isEtre && !isImperative(number);
  if (!mayBeReflexive && isReflexive(compound.phrase, word)) return;
  Reading& reading = begin(compound.phrase, word, number, readings);
  reading.agreed = agreedOfPlace(participlePlace);
  reading.hasParticiple = true;
  reading.match = std::max(word.match, compound.auxiliary.match);
  compound.auxiliary.appendForm(reading.form);
  reading.form.push_back(' ');
  word.appendForm(reading.form);
  const CompoundSlots bit = bitOfCompound(number);
  const bool isInSystem = has(compound.auxiliary.places.system, auxiliaryPlace) &&
                          has(word.places.system, participlePlace) &&
                          (word.facts.system & bit) != 0 &&
                          isAgreedInSystem(number, reading.agreed, compound.isEtre);
  const bool isInNorm = has(compound.auxiliary.places.norm, auxiliaryPlace) &&
                        has(word.places.norm, participlePlace) && (word.facts.norm & bit) != 0 &&
                        isAgreedInNorm(reading, compound.isEtre);
  finish(isInSystem, isInNorm, readings);
}

// Whether the verb makes its compound tenses so.
bool takes(const CompoundForm& compound) {
  const data::Paradigm& facts = compound.participle.facts;
  if (compound.phrase.isReflexive) return compound.isEtre;
  return compound.isEtre ? facts.takesEtre : facts.takesAvoir;
}

void appendRun(const CompoundForm& compound, int auxiliaryPlace, int number, Readings& readings) {
  const Candidate& word = compound.participle;
  for (int agreed = 0; agreed < kAgreedCount; ++agreed) {
    const int place = placeOfParticiple(static_cast<Agreed>(agreed));
    const bool mayAgree = agreed == 0 || compound.isEtre || word.facts.agrees;
    if (mayAgree && has(word.places.system | word.places.norm, place))
      appendAt(compound, auxiliaryPlace, number, place, readings);
  }
}

}  // namespace

bool isAuxiliary(const Candidate& word) {
  return word.verb == kAvoirInfinitive || word.verb == kEtreInfinitive;
}

void appendSimple(const Phrase& phrase, const Candidate& word, Readings& readings) {
  forEachPlace(word.places.system | word.places.norm, [&](int place) {
    const Agreed agreed = agreedOfPlace(place);
    if (agreed != Agreed::masculine && !word.facts.agrees) return;
    if (!fits(phrase, slotOfPlace(place))) return;
    Reading& reading = begin(phrase, word, slotOfPlace(place), readings);
    reading.agreed = agreed;
    reading.hasParticiple = reading.slot == slot::kPastParticiple;
    word.appendForm(reading.form);
    finish(has(word.places.system, place), has(word.places.norm, place), readings);
  });
}

void appendCompound(const Phrase& phrase, const Candidate& auxiliary, const Candidate& participle,
                    Readings& readings) {
  const CompoundForm compound{phrase, auxiliary, participle, auxiliary.verb == kEtreInfinitive};
  if (!takes(compound)) return;
  forEachPlace(auxiliary.places.system | auxiliary.places.norm, [&](int place) {
    const int simple = slotOfPlace(place);
    for (const CompoundRun& run : kCompoundRuns) {
      const int offset = simple - run.simple;
      if (offset < 0 || offset >= run.count) continue;
      const int number = run.compound + offset;
      if (fits(phrase, number)) appendRun(compound, place, number, readings);
    }
  });
}

}  // namespace odmiennik::finder
