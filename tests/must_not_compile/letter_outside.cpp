// SPDX-License-Identifier: GPL-3.0-or-later
// "ł" is not in Windows-1252.
#include "engine/french.h"

using namespace odmiennik::engine::literals;

constexpr auto kText = "ł"_fr;
