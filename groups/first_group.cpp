// SPDX-License-Identifier: GPL-3.0-or-later
// First group: every infinitive in -er.
#include <algorithm>
#include <string_view>

#include "data/first_group.h"
#include "groups/rule_engine.h"
#include "groups/rules.h"

namespace odmiennik::groups {
namespace {

using data::kFirstGroupDispatch;
using data::kFirstGroupModels;

static_assert(everyRowCanBeReached(kFirstGroupDispatch));
static_assert(isNumberedTo(kFirstGroupDispatch, 49));

consteval const Model& modelNamed(Utf8View name) {
  return *std::find_if(std::begin(kFirstGroupModels), std::end(kFirstGroupModels),
                       [&](const Model& model) { return model.name == name; });
}

constexpr Dispatch kDispatch{kFirstGroupDispatch};
constexpr const Model& kRegular = modelNamed("regular");
constexpr const Model& kConditional = modelNamed("conditional");

template <typename Forms>
engine::RuleResult conjugate(Forms& forms, std::uint8_t auxiliary) {
  applyModel(forms, kRegular, {}, auxiliary);
  const EndingRow* row = kDispatch.find(forms[engine::slot::kInfinitive]);
  const Model& model = row == nullptr ? kRegular : kFirstGroupModels[row->model];
  noteClaim(forms, row == nullptr ? std::string_view{} : row->ending, model.name);
  if (&model != &kRegular) applyModel(forms, model, row->group, auxiliary);
  applyModel(forms, kConditional, {}, auxiliary);
  return {.model = model.name};
}

}  // namespace

engine::RuleResult VerbGroups::conjugateFirstGroup(engine::FormTable& forms,
                                                   std::uint8_t auxiliary) const {
  return conjugate(forms, auxiliary);
}

engine::RuleResult VerbGroups::conjugateFirstGroup(engine::TracedForms& forms,
                                                   std::uint8_t auxiliary) const {
  return conjugate(forms, auxiliary);
}

}  // namespace odmiennik::groups
