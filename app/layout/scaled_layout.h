// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's table as it stands in a window of any size.
#pragma once

#include "app/controls/controls.h"
#include "app/logic/rescaling.h"

namespace odmiennik::app {

class FormColumns;
class FormSurface;

// The table's rows as the arithmetic of rescaling takes them, fitting the window's designed size:
// control k is row k + 1.
[[nodiscard]] Layout designedLayout();

// Holds the layout and puts widgets, painted shapes, fonts and pronouns where it says.
class ScaledLayout {
 public:
  // Changes nothing yet: the widgets stand as designed.
  ScaledLayout(const Controls& controls, FormSurface& surface, FormColumns& columns);

  [[nodiscard]] const Layout& layout() const { return dragged_.layout(); }
  [[nodiscard]] DraggedLayout& dragged() { return dragged_; }

  // Shows the layout as it is now, without painting it.
  void apply();

 private:
  void apply(const LayoutControl& control, std::size_t row);

  const Controls& controls_;
  FormSurface& surface_;
  FormColumns& columns_;
  DraggedLayout dragged_;
};

}  // namespace odmiennik::app
