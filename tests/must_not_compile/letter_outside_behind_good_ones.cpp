// SPDX-License-Identifier: GPL-3.0-or-later
// One letter outside spoils a text of good ones.
#include "engine/french.h"

using namespace odmiennik::engine::literals;

constexpr auto kText = "été ż"_fr;
