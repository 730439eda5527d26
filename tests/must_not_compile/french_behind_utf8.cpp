// SPDX-License-Identifier: GPL-3.0-or-later
// French letters cannot be appended to UTF-8 text as they are.
#include "engine/form_table.h"
#include "engine/utf8.h"

using namespace odmiennik;

void append(Utf8Text& out, const engine::FormTable& forms) { out.append(forms[0]); }
