// SPDX-License-Identifier: GPL-3.0-or-later
// Look-up in the built-in verbs.
#include "dictionary/builtin_verbs.h"

#include "dictionary/builtin_verbs_data.h"
#include "dictionary/compiled_texts.h"
#include "engine/string_table.h"

namespace odmiennik::dictionary {

bool BuiltinVerbTable::load(std::string_view key, engine::FormTable& forms) const {
  const auto entry = positionOf(key, data::kBuiltinHash, data::kBuiltinHashSize,
                                data::kBuiltinKeyOffsets, data::kBuiltinKeyBytes);
  if (!entry) return false;
  namespace text_id = engine::text_id;
  const int first = text_id::kBuiltinForms + text_id::kEntriesPerBuiltin * static_cast<int>(*entry);
  for (int slot = 0; slot < engine::kSlotCount; ++slot) {
    const std::string_view form = engine::textOf(first + slot);
    forms[slot].assign(form == engine::kMissing ? std::string_view{} : form);
  }
  return true;
}

}  // namespace odmiennik::dictionary
