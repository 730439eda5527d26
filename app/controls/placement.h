// From the table's twips and points to Qt's pixels and fonts.
#pragma once

#include <QFont>
#include <QRect>
#include <QRectF>

#include "app/controls/control_row.h"

namespace odmiennik::app {

// The control's place in whole pixels, as a widget takes it.
[[nodiscard]] QRect place(const ControlRow& row);

// The same for what is painted, which need not fall on whole pixels.
[[nodiscard]] QRectF exactPlace(const ControlRow& row);

// The program's own font in the size and weight of a row. A point is 20 twips whatever the screen
// says of its resolution, so that letters and boxes keep their proportion.
[[nodiscard]] QFont fontOf(const ControlRow& row);

}  // namespace odmiennik::app
