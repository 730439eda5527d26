// SPDX-License-Identifier: GPL-3.0-or-later
// Builder of the compound tenses.
#include "engine/compound_tenses.h"

#include <algorithm>
#include <array>
#include <string>

#include "engine/norm.h"
#include "engine/string_table.h"

namespace odmiennik::engine {
namespace {

// Of whom the participle is said.
enum Number : std::uint8_t { one, several, either };

// A compound slot and the auxiliary's form that opens it.
struct CompoundSlot {
  std::int8_t slot;
  std::int8_t auxiliaryIndex;
  Number number[2];  // in the system, in the norm
};

constexpr auto kCompoundSlots = [] {
  struct TenseOfSix {
    int firstSlot, firstIndex;
  };
  constexpr TenseOfSix kTensesOfSix[] = {
      {slot::kPerfect, auxiliary_index::kPresent},
      {slot::kPluperfect, auxiliary_index::kImperfect},
      {slot::kPastAnterior, auxiliary_index::kPastHistoric},
      {slot::kFuturePerfect, auxiliary_index::kFuture},
      {slot::kPerfectSubjunctive, auxiliary_index::kPresentSubjunctive},
      {slot::kPluperfectSubjunctive, auxiliary_index::kImperfectSubjunctive},
      {slot::kPastConditional1, auxiliary_index::kPresentConditional},
      {slot::kPastConditional2, auxiliary_index::kImperfectSubjunctive},
  };
  // deliberate: the system's single forms carry no plural s, not even the imperative's nous and
  // vous.
  constexpr CompoundSlot kSingles[] = {
      {slot::kPastInfinitive, auxiliary_index::kInfinitive, {one, either}},
      {slot::kCompoundParticiple, auxiliary_index::kPresentParticiple, {one, either}},
      {slot::kPastImperative, auxiliary_index::kPresentSubjunctive, {one, one}},
      {slot::kPastImperative + 1, auxiliary_index::kPresentSubjunctive + 3, {one, several}},
      {slot::kPastImperative + 2, auxiliary_index::kPresentSubjunctive + 4, {one, either}},  // vous
  };
  std::array<CompoundSlot, std::size(kTensesOfSix) * kPersonCount + std::size(kSingles)> rows{};
  auto row = rows.begin();
  for (const TenseOfSix& tense : kTensesOfSix)
    for (int person = 0; person < kPersonCount; ++person) {
      constexpr int kVous = 4;  // one or several, as whoever is spoken to
      const Number number = person < 3 ? one : several;
      *row++ = {static_cast<std::int8_t>(tense.firstSlot + person),
                static_cast<std::int8_t>(tense.firstIndex + person),
                {number, person == kVous ? either : number}};
    }
  std::copy(std::begin(kSingles), std::end(kSingles), row);
  return rows;
}();

// What stands behind the auxiliary, by Number: a blank and the participle as it agrees.
using Tails = std::array<std::string_view, 3>;

// With être the agreement marker, and behind that the plural's s, which singular forms leave away.
Tails tailsOfSystem(std::string& tail, std::string_view bare, std::uint8_t auxiliary) {
  using namespace std::string_view_literals;
  setTo(tail, " "sv, bare, auxiliary == kEtre ? "(e)s"sv : ""sv);
  const std::string_view plural = tail;
  return {auxiliary == kEtre ? less(tail, 1) : plural, plural, plural};
}

Tails tailsOfNorm(std::string& tail, std::string_view bare) {
  const AgreedParticiple participle = agreed(bare);
  tail.assign(" ").append(participle.one);
  tail.append(" ").append(participle.several).append(" ").append(participle.either);
  const std::string_view text = tail;
  const std::size_t first = participle.one.size() + 1, second = participle.several.size() + 1;
  return {text.substr(0, first), text.substr(first, second), text.substr(first + second)};
}

Tails tailsOf(std::string& tail, std::string_view base, std::uint8_t auxiliary,
              Agreement agreement) {
  const std::string_view bare = withoutMarker(base);
  if (agreement == Agreement::norm && auxiliary == kEtre) return tailsOfNorm(tail, bare);
  return tailsOfSystem(tail, bare, agreement == Agreement::none ? kAvoir : auxiliary);
}

using AuxiliaryForms = std::array<std::string_view, kAuxiliaryFormCount>;

AuxiliaryForms formsOfAuxiliary(std::uint8_t auxiliary, bool isNorm) {
  AuxiliaryForms forms;
  for (int index = 0; index < kAuxiliaryFormCount; ++index)
    forms[static_cast<std::size_t>(index)] = auxiliaryForm(auxiliary, index);
  if (!isNorm) return forms;
  const int first = (auxiliary + 1) * text_id::kAuxiliary;
  for (const NormText& text : normTextsBetween(first, first + kAuxiliaryFormCount))
    forms[static_cast<std::size_t>(text.identifier - first)] = text.text;
  return forms;
}

// The participle as it stands in a dictionary, of several the first: "béni" of "béni, bénit".
std::string_view firstParticiple(std::string_view stored) {
  return stored.substr(0, stored.find_first_of(";/,"));
}

}  // namespace

template <typename Forms>
void buildCompoundTenses(Forms& forms, std::uint8_t auxiliary, CompoundOptions options) {
  const std::string_view base = firstParticiple(forms[slot::kPastParticiple]);
  if (base.empty()) return;
  std::string tail;
  const Tails tails = tailsOf(tail, base, auxiliary, options.agreement);
  const bool isNorm = options.agreement != Agreement::system;
  const AuxiliaryForms auxiliaryForms = formsOfAuxiliary(auxiliary, isNorm);
  const bool placeholdersOnly = options.placeholdersOnly || forms.isPlaceholder(slot::kPerfect);
  const bool allSlots = !placeholdersOnly && !options.keepsEmptySlots;
  const auto isWanted = [&](const std::string& form) {
    return !(options.keepsEmptySlots && form.empty()) &&
           (!placeholdersOnly || form == kPlaceholder);
  };
  noteStep(forms, {}, false, false);
  noteMaker(forms, Maker::compound);
  noteOrigin(forms, slot::kPastParticiple);
  for (const CompoundSlot& row : kCompoundSlots) {
    if (!allSlots && !isWanted(forms[row.slot])) continue;
    putCompound(forms, row.slot, auxiliaryForms[static_cast<std::size_t>(row.auxiliaryIndex)],
                row.auxiliaryIndex, tails[row.number[isNorm ? 1 : 0]], base);
  }
}

template void buildCompoundTenses(FormTable&, std::uint8_t, CompoundOptions);
template void buildCompoundTenses(TracedForms&, std::uint8_t, CompoundOptions);

bool hasCompoundPlaceholder(const FormTable& forms) {
  return std::any_of(kCompoundSlots.begin(), kCompoundSlots.end(),
                     [&](const CompoundSlot& row) { return forms.isPlaceholder(row.slot); });
}

}  // namespace odmiennik::engine
