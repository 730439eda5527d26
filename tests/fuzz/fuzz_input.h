// SPDX-License-Identifier: GPL-3.0-or-later
// What the fuzz targets share: an assertion that holds in every build.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace odmiennik::testing {

// Stops the run when an invariant is broken; the fuzzer keeps the input.
inline void require(bool holds, const char* invariant) {
  if (holds) return;
  std::fprintf(stderr, "invariant broken: %s\n", invariant);
  std::abort();
}

}  // namespace odmiennik::testing
