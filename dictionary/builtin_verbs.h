// SPDX-License-Identifier: GPL-3.0-or-later
// The built-in verbs: 84 irregular and defective ones that no rule covers.
#pragma once

#include <string_view>

#include "engine/ports.h"

namespace odmiennik::dictionary {

class BuiltinVerbTable final : public engine::BuiltinVerbs {
 public:
  // "ensuivre" loads the entry "s'ensuivre", slot 96 with its pronoun; "@" becomes empty, "*"
  // stays.
  [[nodiscard]] bool load(std::string_view key, engine::FormTable& forms) const override;
};

}  // namespace odmiennik::dictionary
