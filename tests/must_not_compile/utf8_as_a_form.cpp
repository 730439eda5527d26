// SPDX-License-Identifier: GPL-3.0-or-later
// A form is French: the name of a tense, UTF-8, is none.
#include "engine/form_table.h"
#include "engine/slots.h"

using namespace odmiennik;

void name(engine::FormTable& forms) { forms[0] = engine::tenseOf(0).name; }
