// SPDX-License-Identifier: GPL-3.0-or-later
// The auxiliary's check box.
#include "app/main_window/auxiliary_box.h"

#include <QSignalBlocker>

#include "app/common/text.h"
#include "dictionary/verb_labels.h"

namespace odmiennik::app {

// What the program sets is no choice of the user's, and tells nobody.
void AuxiliaryBox::show(const engine::Conjugation& conjugation) const {
  const QSignalBlocker blocker(box_);
  const std::uint8_t auxiliary = conjugation.flags.auxiliary;
  box_.setText(fromUtf8(dictionary::auxiliaryCaption(auxiliary)));
  box_.setChecked(auxiliary == engine::kAvoir);
  box_.setEnabled(conjugation.information.isAuxiliaryFree);
}

}  // namespace odmiennik::app
