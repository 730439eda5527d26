// SPDX-License-Identifier: GPL-3.0-or-later
// The arithmetic that keeps the main window's layout in proportion to its size.
#pragma once

#include <cmath>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "engine/utf8.h"

namespace odmiennik::app {

// A size in twips, 15 to a pixel.
struct TwipSize {
  std::int32_t width = 0;
  std::int32_t height = 0;

  bool operator==(const TwipSize&) const = default;
};

// A control as it stands now. Twips and points in single precision: the sizes of boxes become whole
// numbers again at every rescale, all other values keep their fractions. `name` is that of the
// array, without an index. A line has end points instead of a place and a size.
struct LayoutControl {
  Utf8View name;
  Utf8View tag;
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  float x1 = 0;
  float y1 = 0;
  float x2 = 0;
  float y2 = 0;
  float fontSize = 0;
};

// The window's controls, and the size that they fit.
struct Layout {
  TwipSize design;
  float horizontalFactor = 1;  // the last ones
  float verticalFactor = 1;
  float windowFontSize = 0;
  std::vector<LayoutControl> controls;
};

struct ScreenWidth {
  float twips = 12000;
  float twipsPerPixel = 15;

  // deliberate: 800 pixels, whatever the window itself needs. Whole ones: the division of single
  // precision can leave a screen of exactly 800 a hair below.
  [[nodiscard]] bool isTooSmall() const { return std::lround(twips / twipsPerPixel) < 800; }
};

// How a control follows the window, told by its name and tag.
enum class ScaledAs : std::uint8_t { box, shape, line, nothing };

// "lblCzas" -> box, "shpLiniaTrybu" -> shape. Exact, small and capital letters apart.
[[nodiscard]] ScaledAs scaledAs(Utf8View name, Utf8View tag);

// Scales one control. deliberate: a control without a tag keeps its place, whatever its size does.
void scale(LayoutControl& control, float horizontalFactor, float verticalFactor);

enum class Rescaled : std::uint8_t {
  unchanged,  // the window has its design size: nothing was asked either
  rescaled,
  ended,  // the user does not go on in this resolution: the program ends at once
};

// Fits the controls to the window's size. On a screen that is too small `mayContinue` puts the
// question of the resolution first. The design size stays.
[[nodiscard]] Rescaled RescaleLayout(Layout& layout, TwipSize window, ScreenWidth screen,
                                     const std::function<bool()>& mayContinue);

// The window has a new size: rescales, and takes the size as the design size of the next rescale. A
// minimised window is left alone.
[[nodiscard]] Rescaled resizeLayout(Layout& layout, TwipSize window, bool isMinimised,
                                    ScreenWidth screen, const std::function<bool()>& mayContinue);

// A layout whose window is dragged: as long as a drag lasts every resize starts from the layout
// that stood before it, so that what rounding takes does not add up, and a drag that comes back to
// where it began leaves the layout exactly as it was.
class DraggedLayout {
 public:
  explicit DraggedLayout(Layout layout) : layout_(std::move(layout)) {}

  [[nodiscard]] const Layout& layout() const { return layout_; }

  // The first resize of a drag is on its way; during the drag this does nothing.
  void begin();
  void end() { base_.reset(); }

  // As resizeLayout(). A window that has the size of the layout asks nothing and changes nothing;
  // neither does one that a question refused.
  [[nodiscard]] Rescaled resize(TwipSize window, bool isMinimised, ScreenWidth screen,
                                const std::function<bool()>& mayContinue);

 private:
  Layout layout_;
  std::optional<Layout> base_;  // while a drag lasts
};

}  // namespace odmiennik::app
