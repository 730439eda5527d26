// SPDX-License-Identifier: GPL-3.0-or-later
// What fills a message is UTF-8; a form of the table is not.
#include "dictionary/messages.h"
#include "engine/form_table.h"

using namespace odmiennik;

void tell(dictionary::MessageBoxes& messages, const engine::FormTable& forms) {
  messages.show(dictionary::MessageId::commaInForm, forms[0]);
}
