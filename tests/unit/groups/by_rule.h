// SPDX-License-Identifier: GPL-3.0-or-later
// An infinitive conjugated by the rule sets alone, without stored verbs or the verb index.
#pragma once

#include <string>
#include <string_view>

#include "engine/flags.h"
#include "engine/form_table.h"
#include "engine/ports.h"
#include "engine/windows1252.h"
#include "groups/rules.h"
#include "tests/support/test_program.h"

namespace odmiennik::groups {

// Example: ByRule("manger").tense(0) -> "mange | manges | mange | mangeons | mangez | mangent".
struct ByRule {
  engine::FormTable forms;
  engine::RuleResult result;

  explicit ByRule(std::string_view infinitive, std::uint8_t auxiliary = engine::kAvoir,
                  bool isEditing = false) {
    const VerbGroups groups;
    forms[engine::slot::kInfinitive] = testing::french(infinitive);
    result = infinitive.ends_with("er") ? groups.conjugateFirstGroup(forms, auxiliary)
                                        : groups.conjugateByEnding(forms, auxiliary, isEditing);
  }

  [[nodiscard]] std::string slot(int number) const { return testing::utf8(forms[number]); }

  [[nodiscard]] std::string tense(int firstSlot) const {
    std::string row;
    for (int i = 0; i < engine::tenseOf(firstSlot).slotCount; ++i)
      row.append(i == 0 ? "" : " | ").append(slot(firstSlot + i));
    return row;
  }
};

}  // namespace odmiennik::groups
