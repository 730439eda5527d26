// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of the three verb groups, as the driver asks for them.
#pragma once

#include "engine/ports.h"

namespace odmiennik::groups {

class VerbGroups final : public engine::RuleSets {
 public:
  // The regular paradigm, then the spelling model that the ending selects, then the conditional.
  [[nodiscard]] engine::RuleResult conjugateFirstGroup(engine::FormTable& forms,
                                                       std::uint8_t auxiliary) const override;
  [[nodiscard]] engine::RuleResult conjugateFirstGroup(engine::TracedForms& forms,
                                                       std::uint8_t auxiliary) const override;

  // The third-group model or the second group, as the ending decides. A refused verb leaves the
  // table empty but for its infinitive; while editing nothing is refused and nothing touched.
  [[nodiscard]] engine::RuleResult conjugateByEnding(engine::FormTable& forms,
                                                     std::uint8_t auxiliary,
                                                     bool isEditing) const override;
  [[nodiscard]] engine::RuleResult conjugateByEnding(engine::TracedForms& forms,
                                                     std::uint8_t auxiliary,
                                                     bool isEditing) const override;

  void applyNorm(engine::FormTable& forms, std::uint8_t auxiliary, bool isBuiltin) const override;
  void applyNorm(engine::TracedForms& forms, std::uint8_t auxiliary, bool isBuiltin) const override;
};

}  // namespace odmiennik::groups
