// SPDX-License-Identifier: GPL-3.0-or-later
// Notes that take a few steps.
#include "engine/noting.h"

namespace odmiennik::engine {

void putCompound(TracedForms& forms, int slot, std::string_view auxiliary, int auxiliaryForm,
                 std::string_view tail, std::string_view base) {
  const std::string_view bare = withoutMarker(base);
  const std::string_view agreed = tail.substr(1);
  const std::size_t length = agreed.starts_with(bare) ? bare.size() : 0;
  forms.trace().useAuxiliary(auxiliaryForm);
  put(forms, slot, Part{PieceKind::auxiliary, auxiliary}, Part{PieceKind::separator, " "},
      Part{PieceKind::participle, agreed.substr(0, length)},
      Part{PieceKind::agreement, agreed.substr(length)});
}

void replaceParticiple(TracedForms& forms, std::string_view text) {
  const std::string before = forms[slot::kPastParticiple];
  if (text == before) return;
  noteStep(forms, {}, true, false);
  noteMaker(forms, Maker::agreement);
  noteOrigin(forms, slot::kPastParticiple);
  copy(forms, slot::kPastParticiple, text);
}

}  // namespace odmiennik::engine
