// SPDX-License-Identifier: GPL-3.0-or-later
// What the build makes of the built-in verbs beside their texts: the keys under which they are
// found.
#pragma once

#include <cstdint>

namespace odmiennik::dictionary::data {

extern const std::uint32_t kBuiltinKeyOffsets[];  // one more than there are keys
extern const char kBuiltinKeyBytes[];
// Position + 1 of a key by its hash, 0 for an empty place; the size is a power of two.
extern const std::uint8_t kBuiltinHash[];
extern const std::uint32_t kBuiltinHashSize;

}  // namespace odmiennik::dictionary::data
