// SPDX-License-Identifier: GPL-3.0-or-later
// The control: converted, or written as a literal, either text is taken.
#include "dictionary/messages.h"
#include "disk/names.h"
#include "engine/form_table.h"
#include "engine/windows1252.h"

using namespace odmiennik;

void tell(dictionary::MessageBoxes& messages, engine::FormTable& forms) {
  forms[0] = engine::fromUtf8("cédé").text;
  messages.show(dictionary::MessageId::commaInForm, engine::toUtf8(forms[0]));
  messages.show(dictionary::MessageId::commaInForm, "céder");
  const auto file = disk::pathOf("Połącz.txt");
}
