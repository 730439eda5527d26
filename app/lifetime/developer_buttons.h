// SPDX-License-Identifier: GPL-3.0-or-later
// The two hidden buttons behind which the developers' tools stand.
#pragma once

#include "dictionary/user_verbs.h"
#include "engine/utf8.h"

namespace odmiennik::app {

class Controls;

// Command1 builds the resource script of the user's verbs, Command3 joins the numbered texts, both
// in the program's folder (`prefix`). The buttons stay hidden: no user ever meets them.
void connectDeveloperButtons(const Controls& controls, const Utf8Text& prefix,
                             const dictionary::UserVerbsFile& userVerbs);

}  // namespace odmiennik::app
