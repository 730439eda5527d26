// SPDX-License-Identifier: GPL-3.0-or-later
// A literal of bytes that are no UTF-8 is refused like a letter outside.
#include "engine/french.h"

using namespace odmiennik::engine::literals;

constexpr auto kText = "\xE9t\xE9"_fr;
