// SPDX-License-Identifier: GPL-3.0-or-later
// A settings file with colours of its own, and the colours that the window shows.
#pragma once

#include "app/common/text.h"
#include "tests/window/program_run.h"

namespace odmiennik::window_test {

// Red headings of moods and green ones of tenses, 41 conjugations and a run count of 12.
inline constexpr char kColouredSettings[] = "0\r\n255\r\n65280\r\n41\r\n1112\r\n";

[[nodiscard]] inline QColor headingColour(ProgramRun& run, const char* label) {
  return run.widget<QLabel>(label).palette().color(QPalette::WindowText);
}

}  // namespace odmiennik::window_test
