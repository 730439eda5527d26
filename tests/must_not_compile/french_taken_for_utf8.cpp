// SPDX-License-Identifier: GPL-3.0-or-later
// A French text of the engine is no UTF-8.
#include "engine/form_table.h"
#include "engine/windows1252.h"

using namespace odmiennik;

engine::FormTable forms;
const engine::FromUtf8 kRead = engine::fromUtf8(forms[0]);
