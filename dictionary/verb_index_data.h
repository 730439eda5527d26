// SPDX-License-Identifier: GPL-3.0-or-later
// What the build makes of the general verb index.
#pragma once

#include <cstdint>

namespace odmiennik::dictionary::data {

extern const std::uint32_t kVerbOffsets[];  // one more than there are verbs
extern const char kVerbBytes[];
extern const std::uint32_t kRecordOffsets[];
extern const char kRecordBytes[];
extern const std::uint8_t kRecordOfVerb[];
extern const std::uint16_t kFirstOfLetter[];  // 27: the last is the number of verbs
// Position + 1 of a verb by its hash, 0 for an empty place; the size is a power of two.
extern const std::uint16_t kVerbHash[];
extern const std::uint32_t kVerbHashSize;

}  // namespace odmiennik::dictionary::data
