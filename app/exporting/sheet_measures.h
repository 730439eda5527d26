// SPDX-License-Identifier: GPL-3.0-or-later
// The measures of a sheet: points for what stands once, parts of the letters' size for the rest.
#pragma once

namespace odmiennik::app {

inline constexpr double kTitlePoints = 21;
inline constexpr double kFactsPoints = 9;
inline constexpr double kTitleHeight = 25;
inline constexpr double kFactsHeight = 15;
inline constexpr double kFooterPoints = 7;
inline constexpr double kFooterHeight = 12;

inline constexpr double kColumnGap = 10;
inline constexpr double kIndent = 3;  // of the texts of a column
inline constexpr double kHairline = 0.5;

inline constexpr double kLine = 1.18;
inline constexpr double kHeading = 1.4;   // the ground of a tense's name
inline constexpr double kMood = 1.8;      // a mood's name with the rule below it
inline constexpr double kMoodSize = 1.2;  // of its letters
inline constexpr double kBehindTable = 0.45;
inline constexpr double kBaseline = 0.95;  // of letters, below the upper edge of their line

}  // namespace odmiennik::app
