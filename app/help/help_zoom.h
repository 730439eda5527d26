// SPDX-License-Identifier: GPL-3.0-or-later
// How large the pages of the help are shown.
#pragma once

namespace odmiennik::app {

inline constexpr int kNormalZoom = 100;

// The next larger (1) or smaller (-1) size in percent: nextZoom(100, 1) -> 110. At the ends it
// stays.
[[nodiscard]] int nextZoom(int percent, int direction);

// The nearest size that there is, whatever was kept: allowedZoom(-7) -> 50.
[[nodiscard]] int allowedZoom(int percent);

}  // namespace odmiennik::app
