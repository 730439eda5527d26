// SPDX-License-Identifier: GPL-3.0-or-later
// The scripts of the demonstrations.
#include "app/logic/demonstration_script.h"

#include <algorithm>
#include <cmath>

namespace odmiennik::app {
namespace {

using namespace std::chrono_literals;
using enum DemonstrationAction;
using enum DemonstrationPlace;

constexpr DemonstrationStep kTyping[] = {
    {.action = movePointer, .place = entryBox, .pause = 500ms},
    {.action = click, .place = entryBox, .pause = 250ms},
    {.action = typeVerb, .pause = 500ms},
    {.action = pressEnter, .pause = 600ms},
    {.action = rest, .pause = 2000ms},
};

constexpr DemonstrationStep kPicking[] = {
    {.action = movePointer, .place = verbMenu, .pause = 500ms},
    {.action = click, .place = verbMenu, .pause = 250ms},
    {.action = movePointer, .place = listItem, .pause = 500ms},
    {.action = click, .place = listItem, .pause = 400ms},
    {.action = movePointer, .place = letterChoice, .pause = 800ms},
    {.action = click, .place = letterChoice, .pause = 250ms},
    {.action = movePointer, .place = letter, .pause = 500ms},
    {.action = click, .place = letter, .pause = 400ms},
    {.action = movePointer, .place = verb, .pause = 600ms},
    {.action = click, .place = verb, .pause = 250ms},
    {.action = movePointer, .place = conjugateButton, .pause = 500ms},
    {.action = click, .place = conjugateButton, .pause = 250ms},
    {.action = movePointer, .place = closeButton, .pause = 1200ms},
    {.action = click, .place = closeButton, .pause = 250ms},
    {.action = rest, .pause = 2000ms},
};

// About half a second across a large screen's quarter; also a short way can be followed.
constexpr double kPixelsPerPoint = 12;
constexpr int kFewestPoints = 15;
constexpr int kMostPoints = 75;

double distance(ScreenPoint from, ScreenPoint to) {
  return std::hypot(to.x - from.x, to.y - from.y);
}

// 0 to 1 as `part` goes from 0 to 1, level at both ends.
constexpr double eased(double part) { return part * part * (3 - 2 * part); }

int between(int from, int to, double part) {
  return from + static_cast<int>(std::lround((to - from) * part));
}

}  // namespace

std::span<const DemonstrationStep> stepsOf(Demonstration demonstration) {
  if (demonstration == Demonstration::typing) return kTyping;
  return kPicking;
}

std::vector<ScreenPoint> pathOf(ScreenPoint from, ScreenPoint to) {
  if (from == to) return {to};
  const int points = std::clamp(static_cast<int>(distance(from, to) / kPixelsPerPoint),
                                kFewestPoints, kMostPoints);
  std::vector<ScreenPoint> path;
  for (int point = 1; point <= points; ++point) {
    const double part = eased(static_cast<double>(point) / points);
    path.push_back({between(from.x, to.x, part), between(from.y, to.y, part)});
  }
  return path;
}

std::chrono::milliseconds paced(std::chrono::milliseconds interval, double pace) {
  const double milliseconds = static_cast<double>(interval.count()) * pace;
  return std::chrono::milliseconds(std::max(0L, std::lround(milliseconds)));
}

}  // namespace odmiennik::app
