// SPDX-License-Identifier: GPL-3.0-or-later
// What today's norm writes over the forms of a verb.
#include <algorithm>

#include "data/norm_models.h"
#include "groups/rule_engine.h"
#include "groups/rules.h"

namespace odmiennik::groups {
namespace {

using data::kNormModels;
using data::kNormRows;

// The endings are those of rules; a built-in verb may end in the same letters by chance.
// Most rows are passed over by the first letter of their ending, which is a third of the work.
bool claims(const NormRow& row, std::string_view infinitive, bool isBuiltin) {
  const std::string_view ending = row.ending;
  if (infinitive.size() < ending.size()) return false;
  const std::string_view end = infinitive.substr(infinitive.size() - ending.size());
  if (end.front() != ending.front() || (!row.isWholeVerb && isBuiltin)) return false;
  return end == ending && (!row.isWholeVerb || infinitive.size() == ending.size());
}

template <typename Forms>
void apply(Forms& forms, std::uint8_t auxiliary, bool isBuiltin) {
  const std::string_view infinitive = forms[engine::slot::kInfinitive];
  const auto* row = std::ranges::find_if(
      kNormRows, [&](const NormRow& known) { return claims(known, infinitive, isBuiltin); });
  if (row == std::end(kNormRows)) return;
  const Model& model = kNormModels[row->model];
  noteClaim(forms, row->ending, model.name, true, row->isWholeVerb);
  applyModel(forms, model, {}, auxiliary, true);
}

}  // namespace

void VerbGroups::applyNorm(engine::FormTable& forms, std::uint8_t auxiliary, bool isBuiltin) const {
  apply(forms, auxiliary, isBuiltin);
}

void VerbGroups::applyNorm(engine::TracedForms& forms, std::uint8_t auxiliary,
                           bool isBuiltin) const {
  apply(forms, auxiliary, isBuiltin);
}

}  // namespace odmiennik::groups
