// SPDX-License-Identifier: GPL-3.0-or-later
// What the system's printers are asked beyond what Qt knows; one source for Windows, one for other
// desktops.
#pragma once

#include "engine/utf8.h"

namespace odmiennik::app::platform {

// Makes a printer, named as the system names it, the user's default from now on; false
// when the system refuses. An empty name is refused.
bool makeDefaultPrinter(const Utf8Text& printer);

// Whether the print system refused the document that this thread has just handed over. Qt does not
// tell.
[[nodiscard]] bool hasPrintSystemRefused();

}  // namespace odmiennik::app::platform
