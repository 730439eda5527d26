// SPDX-License-Identifier: GPL-3.0-or-later
// UTF-8 text is no French text: it would become UTF-8 twice.
#include "engine/windows1252.h"

using namespace odmiennik;

const Utf8Text kTwice = engine::toUtf8(engine::toUtf8("parler"));
