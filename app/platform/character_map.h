// SPDX-License-Identifier: GPL-3.0-or-later
// The menu item that starts the system's character map.
#pragma once

class QAction;

namespace odmiennik::app {

// Enables `item` and lets it start the character map, where the system has one; else disables it.
void offerCharacterMap(QAction& item);

}  // namespace odmiennik::app
