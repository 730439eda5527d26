// SPDX-License-Identifier: GPL-3.0-or-later
// The colour window's state.
#include "app/logic/colour_dialog.h"

namespace odmiennik::app {

void ColourDialog::choose(std::size_t index, std::optional<Rgb> chosen) {
  canApply_ = true;
  if (chosen) samples_.at(index) = colourNumber(*chosen);
}

ColourNumbers ColourDialog::apply() {
  canApply_ = false;
  return accept();
}

}  // namespace odmiennik::app
