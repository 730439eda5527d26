// SPDX-License-Identifier: GPL-3.0-or-later
// The arrangement of the text table.
#include "formats/text_layout.h"

#include <algorithm>
#include <array>

namespace odmiennik::formats {
namespace {

using engine::kTenses;

namespace tense = engine::tense;

constexpr auto kAllTenses = [] {
  std::array<int, kTenses.size()> tenses{};
  for (std::size_t i = 0; i < tenses.size(); ++i) tenses[i] = static_cast<int>(i);
  return tenses;
}();

constexpr auto kOneColumn = [] {
  std::array<Band, kTenses.size()> bands;
  for (std::size_t i = 0; i < bands.size(); ++i) bands[i] = Band(&kAllTenses[i], 1);
  return bands;
}();

constexpr int kPairs[][2] = {{tense::kPresent, tense::kPerfect},
                             {tense::kImperfect, tense::kPluperfect},
                             {tense::kPastHistoric, tense::kPastAnterior},
                             {tense::kFuture, tense::kFuturePerfect},
                             {tense::kPresentSubjunctive, tense::kPerfectSubjunctive},
                             {tense::kImperfectSubjunctive, tense::kPluperfectSubjunctive},
                             {tense::kPresentConditional, tense::kPastConditional1},
                             {tense::kImperative, tense::kPastImperative},
                             {tense::kInfinitive, tense::kPastInfinitive},
                             {tense::kPresentParticiple, tense::kPastParticiple}};
constexpr int kPastConditional2[] = {tense::kPastConditional2};
constexpr int kCompoundParticiple[] = {tense::kCompoundParticiple};
constexpr Band kTwoColumns[] = {kPairs[0], kPairs[1], kPairs[2], kPairs[3],
                                kPairs[4], kPairs[5], kPairs[6], kPastConditional2,
                                kPairs[7], kPairs[8], kPairs[9], kCompoundParticiple};

constexpr int kSimplePast[] = {tense::kPresent, tense::kImperfect, tense::kPastHistoric};
constexpr int kCompoundPast[] = {tense::kPerfect, tense::kPluperfect, tense::kPastAnterior};
constexpr int kFutures[] = {tense::kFuture, tense::kFuturePerfect};
constexpr int kSubjunctives[] = {tense::kPresentSubjunctive, tense::kImperfectSubjunctive};
constexpr int kCompoundSubjunctives[] = {tense::kPerfectSubjunctive, tense::kPluperfectSubjunctive};
constexpr int kConditionals[] = {tense::kPresentConditional, tense::kPastConditional1,
                                 tense::kPastConditional2};
constexpr int kImperatives[] = {tense::kImperative, tense::kPastImperative};
constexpr int kInfinitives[] = {tense::kInfinitive, tense::kPastInfinitive};
constexpr int kParticiples[] = {tense::kPresentParticiple, tense::kPastParticiple,
                                tense::kCompoundParticiple};
constexpr Band kThreeColumns[] = {kSimplePast,   kCompoundPast,         kFutures,
                                  kSubjunctives, kCompoundSubjunctives, kConditionals,
                                  kImperatives,  kInfinitives,          kParticiples};

constexpr bool holdsEveryTense(std::span<const Band> bands) {
  std::array<int, kTenses.size()> count{};
  for (const Band band : bands)
    for (const int position : band) ++count[static_cast<std::size_t>(position)];
  return std::all_of(count.begin(), count.end(), [](int n) { return n == 1; });
}
static_assert(holdsEveryTense(kOneColumn) && holdsEveryTense(kTwoColumns) &&
              holdsEveryTense(kThreeColumns));

}  // namespace

std::span<const Band> bandsOf(std::size_t columnCount) {
  if (columnCount == 3) return kThreeColumns;
  if (columnCount == 2) return kTwoColumns;
  return kOneColumn;
}

std::vector<int> chosenOf(Band band, const SlotChoice& slots) {
  std::vector<int> tenses;
  for (const int tense : band)
    if (slots.hasTense(tense)) tenses.push_back(tense);
  return tenses;
}

Cell cellOf(const engine::Display& shown, int slot) {
  const auto position = static_cast<std::size_t>(slot);
  const std::string_view form = shown.boxes[position];
  if (form.empty() || form == engine::kShownMissing) return {};
  return {slot < engine::kPersonalSlotCount ? shown.pronouns[position] : std::string_view{}, form};
}

std::string_view captionOf(const engine::Display& shown, int tense) {
  constexpr int kFirst = tense::kPresentSubjunctive;  // the four subjunctives stand in a row
  if (tense < kFirst || tense >= kFirst + static_cast<int>(shown.captions.size())) return {};
  return shown.captions[static_cast<std::size_t>(tense - kFirst)];
}

std::size_t columnCountFor(const engine::Display& shown, const SlotChoice& slots) {
  std::size_t widest = 0;
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    if (slots.has(slot)) widest = std::max(widest, cellOf(shown, slot).width());
  for (const int tense : kAllTenses)
    if (slots.hasTense(tense)) widest = std::max(widest, captionOf(shown, tense).size());
  for (const std::size_t count : {std::size_t{3}, std::size_t{2}})
    if (widest <= columnWidth(count)) return count;
  return 1;
}

}  // namespace odmiennik::formats
