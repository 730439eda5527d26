// SPDX-License-Identifier: GPL-3.0-or-later
// The outline of the about window: a speech bubble cut with straight edges, one corner folded.
#pragma once

#include <QPolygon>
#include <QRegion>
#include <QSize>

namespace odmiennik::app {

// The window's size, and how far its contents keep from the bottom, where the bubble's tip is.
inline constexpr QSize kAboutSize(470, 316);
inline constexpr int kAboutTip = 28;

// All edges run straight or at 45 degrees: such an edge is sharp without blending into the ground.
[[nodiscard]] QPolygon aboutOutline();

// The triangle of the corner that is folded over.
[[nodiscard]] QPolygon aboutFold();

// The region of the window: the bubble's body and its tip, combined.
[[nodiscard]] QRegion aboutRegion();

}  // namespace odmiennik::app
