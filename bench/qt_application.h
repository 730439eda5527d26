// SPDX-License-Identifier: GPL-3.0-or-later
// The application that a benchmark of widgets needs.
#pragma once

#include <QApplication>

#include "app/common/look.h"

namespace odmiennik::app {

// Qt needs one application in a process, made before the first widget, whichever benchmark comes
// first; its screen is never a real one.
inline void needApplication() {
  static int argumentCount = 1;
  static char name[] = "odmiennik_bench";
  static char* arguments[] = {name, nullptr};
  if (QCoreApplication::instance() != nullptr) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  prepare(*new QApplication(argumentCount, arguments));
}

}  // namespace odmiennik::app
