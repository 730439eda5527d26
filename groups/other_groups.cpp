// SPDX-License-Identifier: GPL-3.0-or-later
// Third-group dispatch: every infinitive that does not end in -er, the second group among them.
#include "data/other_groups.h"
#include "groups/rule_engine.h"
#include "groups/rules.h"

namespace odmiennik::groups {
namespace {

using data::kOtherGroupsDispatch;
using data::kOtherGroupsModels;

static_assert(everyRowCanBeReached(kOtherGroupsDispatch));
static_assert(isNumberedTo(kOtherGroupsDispatch, 60));
static_assert(std::size(kOtherGroupsModels) == 58 + 2, "58 of the third group, finir and haïr");

constexpr Dispatch kDispatch{kOtherGroupsDispatch};

template <typename Forms>
engine::RuleResult refuse(Forms& forms, bool isEditing) {
  if (isEditing) return {};
  for (int slot = 0; slot < engine::kSlotCount; ++slot)
    if (slot != engine::slot::kInfinitive) forms[slot].clear();
  return {.isRefused = true};
}

template <typename Forms>
engine::RuleResult conjugate(Forms& forms, std::uint8_t auxiliary, bool isEditing) {
  const std::string_view infinitive = forms[engine::slot::kInfinitive];
  const EndingRow* row = kDispatch.find(infinitive);
  if (row == nullptr || row->claim == Claim::refused) return refuse(forms, isEditing);
  const Model& model = kOtherGroupsModels[row->model];
  noteClaim(forms, row->ending, model.name);
  if (row->claim == Claim::onlyCompounds && infinitive.size() == row->ending.size()) return {};
  applyModel(forms, model, row->group, auxiliary);
  return {.model = model.name};
}

}  // namespace

engine::RuleResult VerbGroups::conjugateByEnding(engine::FormTable& forms, std::uint8_t auxiliary,
                                                 bool isEditing) const {
  return conjugate(forms, auxiliary, isEditing);
}

engine::RuleResult VerbGroups::conjugateByEnding(engine::TracedForms& forms, std::uint8_t auxiliary,
                                                 bool isEditing) const {
  return conjugate(forms, auxiliary, isEditing);
}

}  // namespace odmiennik::groups
