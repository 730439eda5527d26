// SPDX-License-Identifier: GPL-3.0-or-later
// One control of a window's design, as the build reads it from data/window.
#pragma once

#include <cstdint>

#include "engine/utf8.h"

namespace odmiennik::app {

enum class ControlKind : std::uint8_t {
  window,
  label,
  textBox,
  button,
  checkBox,
  frame,
  panel,  // a filled ground
  shape,  // a filled rectangle in a heading's colour
  line,
};

enum class ControlState : std::uint8_t { normal, locked, disabled, hidden };

inline constexpr int kTwipsPerPixel = 15;

// All texts are UTF-8. Places and sizes are twips; those of a line are its first end point and the
// way from there to the second.
struct ControlRow {
  ControlKind kind;
  Utf8View name;
  int index;  // element of an array, -1 for a control of its own
  Utf8View caption;
  int left;
  int top;
  int width;
  int height;
  int fontHundredths;  // points x 100, 0 for a control without text
  bool isBold;
  ControlState state;
  Utf8View tag;  // moves with the window unless empty
  int tabOrder;  // -1: not reached with Tab
  Utf8View accessibleName;
};

}  // namespace odmiennik::app
