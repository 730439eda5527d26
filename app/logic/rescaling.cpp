// SPDX-License-Identifier: GPL-3.0-or-later
// The arithmetic of rescaling.
#include "app/logic/rescaling.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace odmiennik::app {
namespace {

constexpr Utf8View kBoxes[] = {"txtCzasownik", "cmdFrancuskaLitera",       "chkFrancuskaLitera",
                               "chkZAvoir",    "frmInformacjeOCzasowniku", "cmdOdmień"};
constexpr Utf8View kBoxTag = "labelinf";

// deliberate: the font is lowered before its box changes size and raised after it, so that a font
// too large for the new size cannot hold the box back; in the end it follows the height alone.
constexpr float kFontLowering = 5;

void scaleBox(LayoutControl& control, float horizontalFactor, float verticalFactor) {
  control.fontSize = control.fontSize * verticalFactor - kFontLowering;
  control.width = std::trunc(control.width * horizontalFactor);
  control.height = std::trunc(control.height * verticalFactor);
  control.fontSize += kFontLowering;
}

void scaleShape(LayoutControl& control, float horizontalFactor, float verticalFactor) {
  control.width *= horizontalFactor;
  control.height *= verticalFactor;
}

void scaleLine(LayoutControl& control, float horizontalFactor, float verticalFactor) {
  control.x1 *= horizontalFactor;
  control.x2 *= horizontalFactor;
  control.y1 *= verticalFactor;
  control.y2 *= verticalFactor;
}

}  // namespace

ScaledAs scaledAs(Utf8View name, Utf8View tag) {
  const bool isNamedBox = std::ranges::find(kBoxes, name) != std::end(kBoxes);
  if (isNamedBox || name.starts_with("lbl") || tag == kBoxTag) return ScaledAs::box;
  if (name.starts_with("shp")) return ScaledAs::shape;
  return name.starts_with("lin") ? ScaledAs::line : ScaledAs::nothing;
}

void scale(LayoutControl& control, float horizontalFactor, float verticalFactor) {
  switch (scaledAs(control.name, control.tag)) {
    case ScaledAs::box:
      scaleBox(control, horizontalFactor, verticalFactor);
      break;
    case ScaledAs::shape:
      scaleShape(control, horizontalFactor, verticalFactor);
      break;
    case ScaledAs::line:
      scaleLine(control, horizontalFactor, verticalFactor);
      break;
    case ScaledAs::nothing:
      break;
  }
  if (control.tag.empty()) return;
  control.left *= horizontalFactor;
  control.top *= verticalFactor;
}

Rescaled RescaleLayout(Layout& layout, TwipSize window, ScreenWidth screen,
                       const std::function<bool()>& mayContinue) {
  if (window == layout.design) return Rescaled::unchanged;
  const auto ratio = [](std::int32_t now, std::int32_t design) {
    return static_cast<float>(now) / static_cast<float>(design);
  };
  layout.horizontalFactor = ratio(window.width, layout.design.width);
  layout.verticalFactor = ratio(window.height, layout.design.height);
  if (screen.isTooSmall() && !mayContinue()) return Rescaled::ended;
  layout.windowFontSize *= layout.verticalFactor;
  for (LayoutControl& control : layout.controls)
    scale(control, layout.horizontalFactor, layout.verticalFactor);
  return Rescaled::rescaled;
}

Rescaled resizeLayout(Layout& layout, TwipSize window, bool isMinimised, ScreenWidth screen,
                      const std::function<bool()>& mayContinue) {
  if (isMinimised) return Rescaled::unchanged;
  const Rescaled outcome = RescaleLayout(layout, window, screen, mayContinue);
  if (outcome != Rescaled::ended) layout.design = window;
  return outcome;
}

void DraggedLayout::begin() {
  if (!base_) base_ = layout_;
}

// Back at the size of the base nothing is rescaled, and the layout is the base itself.
Rescaled DraggedLayout::resize(TwipSize window, bool isMinimised, ScreenWidth screen,
                               const std::function<bool()>& mayContinue) {
  if (isMinimised || window == layout_.design) return Rescaled::unchanged;
  Layout next = base_.value_or(layout_);
  if (resizeLayout(next, window, isMinimised, screen, mayContinue) == Rescaled::ended)
    return Rescaled::ended;
  layout_ = std::move(next);
  return Rescaled::rescaled;
}

}  // namespace odmiennik::app
