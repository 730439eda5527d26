// The auxiliary's check box.
#include "app/main_window/auxiliary_box.h"

#include <QSignalBlocker>

#include "app/common/text.h"
#include "engine/driver.h"

namespace odmiennik::app {

// What the program sets is no choice of the user's, and tells nobody.
void AuxiliaryBox::show(const engine::Conjugation& conjugation) const {
  const QSignalBlocker blocker(box_);
  const engine::AuxiliaryBox& state = conjugation.information.chkZAvoir;
  box_.setText(fromUtf8(engine::auxiliaryCaption(conjugation.flags.auxiliary)));
  box_.setChecked(state.isChecked);
  box_.setEnabled(state.isEnabled);
}

}  // namespace odmiennik::app
