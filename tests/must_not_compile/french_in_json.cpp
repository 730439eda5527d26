// SPDX-License-Identifier: GPL-3.0-or-later
// A JSON string is made of a form by the function for French.
#include "cli/json_text.h"
#include "engine/form_table.h"

using namespace odmiennik;

void write(Utf8Text& out, const engine::FormTable& forms) { cli::appendJsonUtf8(out, forms[0]); }
