// The arrangement of the text table.
#include "cli/text_layout.h"

#include <algorithm>
#include <array>

namespace odmiennik::cli {
namespace {

using engine::kTenses;

constexpr std::array<int, 22> kAllTenses = [] {
  std::array<int, 22> tenses{};
  for (std::size_t i = 0; i < tenses.size(); ++i) tenses[i] = static_cast<int>(i);
  return tenses;
}();

constexpr std::array<Band, 22> kOneColumn = [] {
  std::array<Band, 22> bands;
  for (std::size_t i = 0; i < bands.size(); ++i) bands[i] = Band(&kAllTenses[i], 1);
  return bands;
}();

constexpr int kPairs[][2] = {{0, 4},  {1, 5},   {2, 6},   {3, 7},   {8, 10},
                             {9, 11}, {12, 13}, {15, 16}, {17, 18}, {19, 20}};
constexpr int kPastConditional2[] = {14};
constexpr int kCompoundParticiple[] = {21};
constexpr Band kTwoColumns[] = {kPairs[0], kPairs[1], kPairs[2], kPairs[3],
                                kPairs[4], kPairs[5], kPairs[6], kPastConditional2,
                                kPairs[7], kPairs[8], kPairs[9], kCompoundParticiple};

constexpr int kSimplePast[] = {0, 1, 2};
constexpr int kCompoundPast[] = {4, 5, 6};
constexpr int kFutures[] = {3, 7};
constexpr int kSubjunctives[] = {8, 9};
constexpr int kCompoundSubjunctives[] = {10, 11};
constexpr int kConditionals[] = {12, 13, 14};
constexpr int kImperatives[] = {15, 16};
constexpr int kInfinitives[] = {17, 18};
constexpr int kParticiples[] = {19, 20, 21};
constexpr Band kThreeColumns[] = {kSimplePast,   kCompoundPast,         kFutures,
                                  kSubjunctives, kCompoundSubjunctives, kConditionals,
                                  kImperatives,  kInfinitives,          kParticiples};

constexpr bool holdsEveryTense(std::span<const Band> bands) {
  std::array<int, kTenses.size()> count{};
  for (const Band band : bands)
    for (const int tense : band) ++count[static_cast<std::size_t>(tense)];
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

Cell cellOf(const engine::Display& shown, int slot) {
  const auto position = static_cast<std::size_t>(slot);
  const std::string_view form = shown.boxes[position];
  if (form.empty() || form == engine::kShownMissing) return {};
  return {slot < engine::kPersonalSlotCount ? shown.pronouns[position] : std::string_view{}, form};
}

std::string_view captionOf(const engine::Display& shown, int tense) {
  constexpr int kFirst = 8;  // the four subjunctive tenses stand in a row
  if (tense < kFirst || tense >= kFirst + static_cast<int>(shown.captions.size())) return {};
  return shown.captions[static_cast<std::size_t>(tense - kFirst)];
}

std::size_t columnCountFor(const engine::Display& shown) {
  std::size_t widest = 0;
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    widest = std::max(widest, cellOf(shown, slot).width());
  for (const std::string_view caption : shown.captions) widest = std::max(widest, caption.size());
  for (const std::size_t count : {std::size_t{3}, std::size_t{2}})
    if (widest <= columnWidth(count)) return count;
  return 1;
}

}  // namespace odmiennik::cli
