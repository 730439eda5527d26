// SPDX-License-Identifier: GPL-3.0-or-later
// Starting the character map.
#include "app/platform/character_map.h"

#include <QAction>

#include "app/platform/platform.h"

namespace odmiennik::app {

void offerCharacterMap(QAction& item) {
  const std::string program = platform::characterMap();
  item.setEnabled(!program.empty());
  if (program.empty()) return;
  QObject::connect(&item, &QAction::triggered, &item, [program] { platform::start(program); });
}

}  // namespace odmiennik::app
