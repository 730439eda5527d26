// SPDX-License-Identifier: GPL-3.0-or-later
// The tip of the day: which one is drawn, and how it reads.
#pragma once

#include "engine/utf8.h"

namespace odmiennik::app {

// The tip that explains how to conjugate a verb, which the Help menu asks for and the
// demonstrations follow.
inline constexpr int kHowToTip = 5;

// How many tips there are.
[[nodiscard]] int tipCount();

// Draws a tip, 1 to `count`; `random` lies in [0, 1). A forced draw gives the how-to and clears
// `isForced`. deliberate: no history is kept, so the same tip may come twice in a row.
[[nodiscard]] int drawTip(double random, double count, bool& isForced);

// Whether the buttons of the demonstrations are shown beside the tip.
[[nodiscard]] constexpr bool offersDemonstration(int tip) { return tip == kHowToTip; }

// `text` with `lineBreak` for every "/n".
[[nodiscard]] Utf8Text withLineBreaks(Utf8View text, Utf8View lineBreak = "\r\n");

// The text of a tip, UTF-8, ready to be shown.
[[nodiscard]] Utf8Text tipText(int tip, Utf8View lineBreak = "\r\n");

}  // namespace odmiennik::app
