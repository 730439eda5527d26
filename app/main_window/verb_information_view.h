// SPDX-License-Identifier: GPL-3.0-or-later
// The frame that tells what is known of the verb.
#pragma once

#include <QLabel>

#include "app/controls/controls.h"
#include "engine/verb_information.h"

namespace odmiennik::app {

class VerbInformationView {
 public:
  explicit VerbInformationView(const Controls& controls);

  void show(const engine::VerbInformation& information) const;

 private:
  const Controls& controls_;
};

}  // namespace odmiennik::app
