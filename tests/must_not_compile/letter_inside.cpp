// SPDX-License-Identifier: GPL-3.0-or-later
// The control: all these letters are in Windows-1252, so the literal compiles.
#include "engine/french.h"

using namespace odmiennik::engine::literals;

static_assert("été, œuvre, haïr, ça, où, Ÿ, €"_fr.size() == 30);
