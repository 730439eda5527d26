// The auxiliary's check box.
#include "app/main_window/auxiliary_box.h"

#include "app/common/text.h"
#include "engine/driver.h"

namespace odmiennik::app {

void AuxiliaryBox::show(const engine::Conjugation& conjugation) const {
  const engine::AuxiliaryBox& state = conjugation.information.chkZAvoir;
  box_.setText(fromUtf8(engine::auxiliaryCaption(conjugation.flags.auxiliary)));
  box_.setChecked(state.isChecked);
  box_.setEnabled(state.isEnabled);
}

}  // namespace odmiennik::app
