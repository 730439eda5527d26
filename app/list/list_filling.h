// SPDX-License-Identifier: GPL-3.0-or-later
// What the verb list is filled with: the user's own verbs, or those of a letter.
#pragma once

#include "app/list/list_controls.h"
#include "app/logic/verb_list.h"
#include "dictionary/user_verbs.h"
#include "engine/utf8.h"

namespace odmiennik::app {

// The user's own verbs as they stand in the program's folder at this moment.
[[nodiscard]] UserVerbsFound findUserVerbs(const Utf8Text& prefix,
                                           dictionary::UserVerbsFile& userVerbs);

// Fills the list with the verbs of a letter while the bar grows. The window is painted meanwhile;
// what the user does waits until the list is there: fillLetter('a', list, controls).
void fillLetter(char letter, VerbList& list, ListControls& controls);

}  // namespace odmiennik::app
