// SPDX-License-Identifier: GPL-3.0-or-later
// A widget as a picture on one page.
#pragma once

#include <QImage>
#include <QRect>

class QPrinter;
class QWidget;

namespace odmiennik::app {

// The largest place in `page` with the proportion of `size`, in the page's middle.
[[nodiscard]] QRect fitted(QSize size, const QRect& page);

// The widget as it stands, drawn anew in `width` pixels across: sharp in every size.
[[nodiscard]] QImage pictureOf(QWidget& widget, int width);

// Prints the widget on one page, lying down when it is wider than high, at the printer's resolution
// and without loss. False when the printer is not ready or the print system refuses the document.
[[nodiscard]] bool printPicture(QWidget& widget, QPrinter& printer);

}  // namespace odmiennik::app
