// SPDX-License-Identifier: GPL-3.0-or-later
// Where nothing is to be said: a verb conjugated for the program itself, or shown once more.
#pragma once

#include "engine/ports.h"

namespace odmiennik::app {

struct SilentShell final : engine::Shell {
  void show(engine::Notice /*notice*/) override {}
  void resetSettings() override {}
};

}  // namespace odmiennik::app
