// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told of a line that is typed into.
#pragma once

namespace odmiennik::app {

// From now on every line edit of the program answers for itself. Qt's own answer never ends when
// the word at the end of a text is asked for, and a reader asks for it at each Ctrl+Left and
// Ctrl+Right: the program would hang, with what was being edited.
void answerForLines();

}  // namespace odmiennik::app
