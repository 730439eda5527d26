// SPDX-License-Identifier: GPL-3.0-or-later
// What the build makes of the string table's sources: one block of bytes and the place of every
// text.
#pragma once

#include <cstdint>

namespace odmiennik::engine::data {

// Text of identifier n lies between offsets n and n + 1; identifiers that are not used have none.
extern const std::uint32_t kStringOffsets[];
extern const char kStringBytes[];

}  // namespace odmiennik::engine::data
