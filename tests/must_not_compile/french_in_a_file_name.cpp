// SPDX-License-Identifier: GPL-3.0-or-later
// A file's name is UTF-8, whatever the system; an infinitive is not.
#include "disk/names.h"
#include "engine/french.h"

using namespace odmiennik;
using namespace engine::literals;

const auto kFile = disk::pathOf("céder"_fr);
