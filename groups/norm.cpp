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
bool claims(const NormRow& row, std::string_view infinitive, bool isBuiltin) {
  if (row.isWholeVerb) return infinitive == row.ending;
  return !isBuiltin && infinitive.ends_with(row.ending);
}

}  // namespace

void VerbGroups::applyNorm(engine::FormTable& forms, std::uint8_t auxiliary, bool isBuiltin) const {
  const std::string_view infinitive = forms[engine::slot::kInfinitive];
  const auto* row = std::ranges::find_if(
      kNormRows, [&](const NormRow& known) { return claims(known, infinitive, isBuiltin); });
  if (row != std::end(kNormRows)) applyModel(forms, kNormModels[row->model], {}, auxiliary);
}

}  // namespace odmiennik::groups
