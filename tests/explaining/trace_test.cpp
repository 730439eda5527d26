// SPDX-License-Identifier: GPL-3.0-or-later
// The trace of every form of every verb, put together again.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/explaining/traced_verb.h"
#include "tests/support/test_program.h"

namespace odmiennik::testing {
namespace {

using engine::Making;
using engine::Piece;
using engine::PieceKind;
using engine::SlotTrace;

constexpr std::size_t kMostFaults = 5;

using Faults = std::vector<std::string>;

// Where `isRight` says no, of every slot of every verb; a few places are enough.
template <typename IsRight>
Faults faultsOf(IsRight isRight) {
  Faults faults;
  forEveryTracedVerb([&](const std::string& typed, const engine::TracedConjugation& conjugation) {
    for (int slot = 0; slot < engine::kSlotCount; ++slot)
      if (faults.size() < kMostFaults && !isRight(conjugation, slot))
        faults.push_back(placeOf(typed, conjugation, slot) + ": " + utf8(conjugation.forms[slot]));
  });
  return faults;
}

std::string recomposed(const SlotTrace& trace) {
  if (trace.lack != engine::Lack::none || trace.makings.empty()) return {};
  return textOf(trace.makings.back().pieces);
}

std::vector<std::string> variantsOf(std::string_view text) {
  std::vector<std::string> variants;
  for (auto bar = text.find('/'); bar != std::string_view::npos; bar = text.find('/')) {
    variants.emplace_back(text.substr(0, bar));
    text.remove_prefix(bar + 1);
  }
  variants.emplace_back(text);
  return variants;
}

// What a making started from, as each of its forms has it.
std::vector<std::string> stemsByOrigin(const Making& making) {
  std::vector<std::string> stems;
  const engine::Origin& origin = making.origin;
  const bool isByVariant = making.maker == engine::Maker::presentSubjunctive ||
                           making.maker == engine::Maker::conditional;
  const auto variants = isByVariant ? variantsOf(origin.form) : std::vector{origin.form};
  for (const std::string& variant : variants)
    stems.push_back(std::string(engine::less(variant, origin.cut)) + origin.added);
  return stems;
}

std::vector<std::string> stemsByPieces(const Making& making) {
  std::vector<std::string> stems;
  for (const Piece& piece : making.pieces)
    if (piece.kind == PieceKind::stem) stems.push_back(piece.text);
  return stems;
}

// The form that stands in a slot before pronouns are added.
std::string bareForm(const SlotTrace& trace) {
  std::string bare;
  if (trace.makings.empty()) return bare;
  for (const Piece& piece : trace.makings.back().pieces)
    if (piece.kind != PieceKind::reflexive && piece.kind != PieceKind::enclitic) bare += piece.text;
  return bare;
}

TEST(trace, gives_every_form_of_every_verb_when_its_pieces_are_put_together) {
  const auto isRecomposed = [](const engine::TracedConjugation& conjugation, int slot) {
    return recomposed(conjugation.trace[slot]) == conjugation.forms[slot];
  };
  EXPECT_EQ(faultsOf(isRecomposed), Faults{});
}

TEST(trace, shows_what_the_box_shows) {
  const auto isShown = [](const engine::TracedConjugation& conjugation, int slot) {
    const SlotTrace& trace = conjugation.trace[slot];
    const std::string& form = conjugation.forms[slot];
    const std::string_view box = conjugation.shown.boxes[static_cast<std::size_t>(slot)];
    return form.empty() ? box == engine::kShownMissing
                        : form.substr(trace.shownFirst, trace.shownLength) == box;
  };
  EXPECT_EQ(faultsOf(isShown), Faults{});
}

TEST(trace, names_what_each_stem_was_cut_from) {
  const auto isNamed = [](const engine::TracedConjugation& conjugation, int slot) {
    if (conjugation.trace[slot].makings.empty()) return true;
    const Making& making = conjugation.trace[slot].makings.back();
    const std::vector<std::string> stems = stemsByPieces(making);
    if (stems.empty()) return true;
    const std::vector<std::string> expected = stemsByOrigin(making);
    if (making.maker != engine::Maker::model) return stems == expected;
    return std::ranges::all_of(stems, [&](const auto& one) { return one == expected.front(); });
  };
  EXPECT_EQ(faultsOf(isNamed), Faults{});
}

TEST(trace, cuts_stems_from_forms_that_stand_in_the_table) {
  const auto isStanding = [](const engine::TracedConjugation& conjugation, int slot) {
    const SlotTrace& trace = conjugation.trace[slot];
    if (trace.makings.empty() || trace.makings.back().maker == engine::Maker::agreement)
      return true;
    const engine::Origin& origin = trace.makings.back().origin;
    return origin.slot == engine::kNoSlot ||
           origin.form == bareForm(conjugation.trace[origin.slot]);
  };
  EXPECT_EQ(faultsOf(isStanding), Faults{});
}

TEST(trace, has_a_maker_for_every_form) {
  const auto isMade = [](const engine::TracedConjugation& conjugation, int slot) {
    return conjugation.forms[slot].empty() ||
           conjugation.trace[slot].makings.back().maker != engine::Maker::none;
  };
  EXPECT_EQ(faultsOf(isMade), Faults{});
}

}  // namespace
}  // namespace odmiennik::testing
