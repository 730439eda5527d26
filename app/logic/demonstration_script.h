// SPDX-License-Identifier: GPL-3.0-or-later
// What the two demonstrations do, step by step, and how the pointer moves meanwhile.
#pragma once

#include <chrono>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/utf8.h"

namespace odmiennik::app {

// The two ways to conjugate a verb: typing it, or picking it from the list.
enum class Demonstration : std::uint8_t { typing, picking };

// Where the pointer goes.
enum class DemonstrationPlace : std::uint8_t {
  entryBox,
  verbMenu,         // "Czasownik" in the menu bar
  listItem,         // "Lista" in that menu
  letterChoice,     // the drop-down list of the verb list's window
  letter,           // the letter of `kPickedVerb` in it
  verb,             // `kPickedVerb` in the list
  conjugateButton,  // "Odmień"
  closeButton       // "Zamknij"
};

// Whether a place is in what a click opens and a desktop may close again: a menu, a drop-down list.
[[nodiscard]] constexpr bool isOpenedByClick(DemonstrationPlace place) {
  return place == DemonstrationPlace::listItem || place == DemonstrationPlace::letter;
}

enum class DemonstrationAction : std::uint8_t { movePointer, click, typeVerb, pressEnter, rest };

struct DemonstrationStep {
  DemonstrationAction action;
  // Of movePointer and click; typing goes to the entry box.
  DemonstrationPlace place = DemonstrationPlace::entryBox;
  std::chrono::milliseconds pause{};  // before the step
};

// The verbs of the demonstrations. Every one of them says much in one look: a regular verb
// to type, an irregular one with "être" to pick.
inline constexpr Utf8View kTypedVerb = "chanter";
inline constexpr Utf8View kPickedVerb = "naître";

// The time from one letter to the next, from one bit of the pointer's path to the next, and from
// the press of the mouse button to its release.
inline constexpr std::chrono::milliseconds kLetterInterval{260};
inline constexpr std::chrono::milliseconds kPathInterval{16};
inline constexpr std::chrono::milliseconds kClickLength{140};

// How long a place that is not there yet (a window that is opening) is waited for.
inline constexpr std::chrono::milliseconds kPlaceInterval{50};
inline constexpr int kPlaceAttempts = 60;

// The steps in their order. A click is always at the place where the pointer was moved before.
[[nodiscard]] std::span<const DemonstrationStep> stepsOf(Demonstration demonstration);

// A place on the screen in pixels.
struct ScreenPoint {
  int x = 0;
  int y = 0;
  friend bool operator==(const ScreenPoint&, const ScreenPoint&) = default;
};

// The pointer's way, one point for each `kPathInterval`, `to` being the last: slow where it begins
// and ends, so that the eye can follow. Never empty: pathOf(p, p) -> {p}.
[[nodiscard]] std::vector<ScreenPoint> pathOf(ScreenPoint from, ScreenPoint to);

// `interval` in a demonstration that runs `pace` times as long; never negative.
[[nodiscard]] std::chrono::milliseconds paced(std::chrono::milliseconds interval, double pace);

}  // namespace odmiennik::app
