// SPDX-License-Identifier: GPL-3.0-or-later
// Sizes of pages.
#include "app/help/help_zoom.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace odmiennik::app {
namespace {

constexpr std::array kSizes{50, 67, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};

const int* nearest(int percent) {
  const auto farther = [percent](int first, int second) {
    const auto distance = [percent](long size) { return std::labs(size - percent); };
    return distance(first) < distance(second);
  };
  return std::min_element(kSizes.begin(), kSizes.end(), farther);
}

}  // namespace

int allowedZoom(int percent) { return *nearest(percent); }

int nextZoom(int percent, int direction) {
  const auto place = nearest(percent) - kSizes.data() + direction;
  return kSizes[static_cast<std::size_t>(
      std::clamp<std::ptrdiff_t>(place, 0, std::ssize(kSizes) - 1))];
}

}  // namespace odmiennik::app
