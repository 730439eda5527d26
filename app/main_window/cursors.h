// SPDX-License-Identifier: GPL-3.0-or-later
// The pointers that the program draws itself.
#pragma once

#include <QCursor>

namespace odmiennik::app {

class Controls;

// The program's arrow, for everything that has no pointer of its own.
[[nodiscard]] QCursor arrowCursor();

// A hand with a pointing finger, for what can be clicked and is no button.
[[nodiscard]] QCursor handCursor();

// An hourglass, while the program is busy. The system's own would be read from its theme each time
// the program starts, which takes longer than all else that the window needs from the disk.
[[nodiscard]] QCursor hourglassCursor();

// Gives the hand to the headings that open a page of the help.
void showHandOverTopics(const Controls& controls);

}  // namespace odmiennik::app
