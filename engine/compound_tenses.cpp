// SPDX-License-Identifier: GPL-3.0-or-later
// Builder of the compound tenses.
#include "engine/compound_tenses.h"

#include <algorithm>
#include <array>
#include <bitset>
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
  Number number;
  Number numberInNorm;
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
      {slot::kPastInfinitive, auxiliary_index::kInfinitive, one, either},
      {slot::kCompoundParticiple, auxiliary_index::kPresentParticiple, one, either},
      {slot::kPastImperative, auxiliary_index::kPresentSubjunctive, one, one},
      {slot::kPastImperative + 1, auxiliary_index::kPresentSubjunctive + 3, one, several},
      {slot::kPastImperative + 2, auxiliary_index::kPresentSubjunctive + 4, one, either},  // vous
  };
  std::array<CompoundSlot, std::size(kTensesOfSix) * kPersonCount + std::size(kSingles)> rows{};
  auto row = rows.begin();
  for (const TenseOfSix& tense : kTensesOfSix)
    for (int person = 0; person < kPersonCount; ++person) {
      constexpr int kVous = 4;  // one or several, as whoever is spoken to
      const Number number = person < 3 ? one : several;
      *row++ = {static_cast<std::int8_t>(tense.firstSlot + person),
                static_cast<std::int8_t>(tense.firstIndex + person), number,
                person == kVous ? either : number};
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

// The forms of one auxiliary in the norm. Which of them it changes is asked once: at every slot it
// would take a fifth of the answer.
class AuxiliaryFormsOfNorm {
 public:
  explicit AuxiliaryFormsOfNorm(std::uint8_t auxiliary)
      : auxiliary_(auxiliary), first_((auxiliary + 1) * text_id::kAuxiliary) {
    for (const NormText& text : normTextsBetween(first_, first_ + text_id::kAuxiliary))
      isOfNorm_.set(static_cast<std::size_t>(text.identifier - first_));
  }

  std::string_view operator[](int index) const {
    if (isOfNorm_[static_cast<std::size_t>(index)]) return normTextOf(first_ + index);
    return auxiliaryForm(auxiliary_, index);
  }

 private:
  std::uint8_t auxiliary_;
  int first_;
  std::bitset<64> isOfNorm_;  // of 44 forms
};

}  // namespace

template <typename Forms>
void buildCompoundTenses(Forms& forms, std::uint8_t auxiliary, CompoundOptions options) {
  const std::string_view stored = forms[slot::kPastParticiple];
  const std::string_view base = stored.substr(0, stored.find_first_of(";/,"));
  if (base.empty()) return;
  std::string tail;
  const Tails tails = tailsOf(tail, base, auxiliary, options.agreement);
  const bool isNorm = options.agreement != Agreement::system;
  const bool placeholdersOnly = options.placeholdersOnly || forms.isPlaceholder(slot::kPerfect);
  const AuxiliaryFormsOfNorm ofNorm(auxiliary);
  noteStep(forms, {}, false, false);
  noteMaker(forms, Maker::compound);
  noteOrigin(forms, slot::kPastParticiple);
  for (const CompoundSlot& row : kCompoundSlots) {
    const std::string& form = forms[row.slot];
    if (options.keepsEmptySlots && form.empty()) continue;
    if (placeholdersOnly && form != kPlaceholder) continue;
    putCompound(forms, row.slot,
                isNorm ? ofNorm[row.auxiliaryIndex] : auxiliaryForm(auxiliary, row.auxiliaryIndex),
                row.auxiliaryIndex, tails[isNorm ? row.numberInNorm : row.number], base);
  }
}

template void buildCompoundTenses(FormTable&, std::uint8_t, CompoundOptions);
template void buildCompoundTenses(TracedForms&, std::uint8_t, CompoundOptions);

bool hasCompoundPlaceholder(const FormTable& forms) {
  return std::any_of(kCompoundSlots.begin(), kCompoundSlots.end(),
                     [&](const CompoundSlot& row) { return forms.isPlaceholder(row.slot); });
}

}  // namespace odmiennik::engine
