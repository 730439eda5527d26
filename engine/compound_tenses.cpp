// Builder of the compound tenses.
#include "engine/compound_tenses.h"

#include <algorithm>
#include <array>
#include <string>

#include "engine/flags.h"
#include "engine/string_table.h"

namespace odmiennik::engine {
namespace {

// A compound slot and the auxiliary's form that opens it.
struct CompoundSlot {
  std::int8_t slot;
  std::int8_t auxiliaryIndex;
  bool isPlural;
};

constexpr auto kCompoundSlots = [] {
  struct Run {
    int firstSlot, firstIndex;
  };
  constexpr Run kRuns[] = {
      {slot::kPerfect, auxiliary_index::kPresent},
      {slot::kPluperfect, auxiliary_index::kImperfect},
      {slot::kPastAnterior, auxiliary_index::kPastHistoric},
      {slot::kFuturePerfect, auxiliary_index::kFuture},
      {slot::kPerfectSubjunctive, auxiliary_index::kPresentSubjunctive},
      {slot::kPluperfectSubjunctive, auxiliary_index::kImperfectSubjunctive},
      {slot::kPastConditional1, auxiliary_index::kPresentConditional},
      {slot::kPastConditional2, auxiliary_index::kImperfectSubjunctive},
  };
  // The single forms carry no plural s, not even the imperative's nous and vous.
  constexpr CompoundSlot kSingles[] = {
      {slot::kPastInfinitive, auxiliary_index::kInfinitive, false},
      {slot::kCompoundParticiple, auxiliary_index::kPresentParticiple, false},
      {slot::kPastImperative, auxiliary_index::kPresentSubjunctive, false},
      {slot::kPastImperative + 1, auxiliary_index::kPresentSubjunctive + 3, false},
      {slot::kPastImperative + 2, auxiliary_index::kPresentSubjunctive + 4, false},
  };
  std::array<CompoundSlot, std::size(kRuns) * kPersonCount + std::size(kSingles)> rows{};
  auto row = rows.begin();
  for (const Run& run : kRuns)
    for (int person = 0; person < kPersonCount; ++person)
      *row++ = {static_cast<std::int8_t>(run.firstSlot + person),
                static_cast<std::int8_t>(run.firstIndex + person), person >= 3};
  std::copy(std::begin(kSingles), std::end(kSingles), row);
  return rows;
}();

constexpr std::string_view kAgreement = "(e)";

// What stands behind the auxiliary: a blank and the participle, with être the agreement marker, and
// behind that the plural's s, which singular forms leave away.
void setTail(std::string& tail, std::string_view base, std::uint8_t auxiliary) {
  using namespace std::string_view_literals;
  const std::string_view bare = base.ends_with(kAgreement) ? less(base, kAgreement.size()) : base;
  setTo(tail, " "sv, bare, auxiliary == kEtre ? "(e)s"sv : ""sv);
}

}  // namespace

void buildCompoundTenses(FormTable& forms, std::uint8_t auxiliary, CompoundOptions options) {
  const std::string_view stored = forms[slot::kPastParticiple];
  const std::string_view base = stored.substr(0, stored.find_first_of(";/,"));
  if (base.empty()) return;
  thread_local std::string tail;  // kept between verbs for its buffer only
  setTail(tail, base, auxiliary);
  const std::string_view pluralTail = tail;
  const std::string_view singularTail = auxiliary == kEtre ? less(tail, 1) : pluralTail;
  const bool placeholdersOnly = options.placeholdersOnly || forms.isPlaceholder(slot::kPerfect);
  for (const CompoundSlot& row : kCompoundSlots) {
    std::string& form = forms[row.slot];
    if (options.keepsEmptySlots && form.empty()) continue;
    if (placeholdersOnly && form != kPlaceholder) continue;
    setTo(form, auxiliaryForm(auxiliary, row.auxiliaryIndex),
          row.isPlural ? pluralTail : singularTail);
  }
}

bool hasCompoundPlaceholder(const FormTable& forms) {
  return std::any_of(kCompoundSlots.begin(), kCompoundSlots.end(),
                     [&](const CompoundSlot& row) { return forms.isPlaceholder(row.slot); });
}

}  // namespace odmiennik::engine
