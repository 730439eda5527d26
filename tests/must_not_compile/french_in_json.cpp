// SPDX-License-Identifier: GPL-3.0-or-later
// A JSON string is made of a form by the function for French.
#include "engine/form_table.h"
#include "formats/json_text.h"

using namespace odmiennik;

void write(Utf8Text& out, const engine::FormTable& forms) {
  formats::appendJsonUtf8(out, forms[0]);
}
