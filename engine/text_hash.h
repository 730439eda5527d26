// SPDX-License-Identifier: GPL-3.0-or-later
// The hash under which compiled-in texts are looked up; the build and the program share it.
#pragma once

#include <cstdint>
#include <string_view>

namespace odmiennik::engine {

// FNV-1a, 32 bits, with its high bits folded down: the tables take the low ones.
[[nodiscard]] constexpr std::uint32_t textHash(std::string_view text) {
  std::uint32_t hash = 2166136261U;
  for (const char letter : text) hash = (hash ^ static_cast<unsigned char>(letter)) * 16777619U;
  return hash ^ (hash >> 15);
}

}  // namespace odmiennik::engine
