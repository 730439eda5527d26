// SPDX-License-Identifier: GPL-3.0-or-later
// What a printed picture must not hold.
#pragma once

#include <QImage>

namespace odmiennik::window_test {

// Whether a part shows a colour that is no grey.
inline bool isColoured(const QImage& picture, const QRect& part) {
  constexpr int kGrey = 8;  // no more saturated than this
  for (int y = part.top(); y <= part.bottom(); ++y)
    for (int x = part.left(); x <= part.right(); ++x)
      if (picture.pixelColor(x, y).saturation() > kGrey) return true;
  return false;
}

}  // namespace odmiennik::window_test
